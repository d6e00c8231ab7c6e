#include "conversions/HRFPatternRun.h"

using namespace Qt::StringLiterals;

std::vector<HRFPatternRun> HRFDisplayRunsForItems(const HRFPatternElements &items)
{
    std::vector<HRFPatternRun> runs;
    for (const HRFPatternElement &element : items) {
        if (const auto *literal = std::get_if<QString>(&element)) {
            runs.push_back({*literal, HRFPatternRun::Kind::Literal});
            continue;
        }
        const auto &item = std::get<HRFPatternItem>(element);
        const QString before = &element == &items.front() ? QString() : u" "_s;
        const QString after = &element == &items.back() ? QString() : u" "_s;
        runs.push_back({before + item.tokenTitle() + after, HRFPatternRun::kindOf(item)});
    }
    return runs;
}
