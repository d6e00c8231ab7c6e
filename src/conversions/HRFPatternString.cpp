#include "conversions/HRFPatternString.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar percent = u'%';

/// From one percent sign to the next one of the same line.
struct Span
{
    qsizetype start;
    qsizetype end; ///< behind the second percent sign
};

std::optional<Span> nextSpan(const QString &string, qsizetype from)
{
    for (qsizetype start = string.indexOf(percent, from); start >= 0;
         start = string.indexOf(percent, start + 1)) {
        const qsizetype close = string.indexOf(percent, start + 1);
        if (close < 0)
            return {};
        if (!QStringView(string).sliced(start, close - start).contains(u'\n'))
            return Span{start, close + 1};
    }
    return {};
}

/// What stands between the percent signs.
QString nameIn(const QString &string, const Span &span)
{
    return string.sliced(span.start + 1, span.end - span.start - 2);
}

} // namespace

QString HRFPatternStringForItems(const HRFPatternElements &items)
{
    QString string;
    for (const HRFPatternElement &element : items) {
        if (const auto *literal = std::get_if<QString>(&element))
            string += QString(*literal).replace(percent, u"%%"_s);
        else if (const auto &item = std::get<HRFPatternItem>(element);
                 !item.editingString().isNull())
            string += percent + item.editingString() + percent;
    }
    return string;
}

HRFPatternElements HRFItemsForPatternString(const QString &string,
                                            const std::vector<HRFPatternItem> &offeredItems)
{
    HRFPatternElements elements;
    QString literal;
    qsizetype end = 0;
    while (const std::optional<Span> span = nextSpan(string, end)) {
        literal += QStringView(string).sliced(end, span->start - end);
        end = span->end;
        const QString name = nameIn(string, *span);
        if (name.isEmpty()) {
            literal += percent;
            continue;
        }
        if (!literal.isEmpty())
            elements.emplace_back(std::exchange(literal, {}));
        const auto item = std::ranges::find(offeredItems, name, &HRFPatternItem::editingString);
        if (item != offeredItems.end())
            elements.emplace_back(*item);
    }
    if (end < string.size())
        elements.emplace_back(string.sliced(end));
    return elements;
}

QStringList HRFUnknownTokens(const QString &string, const std::vector<HRFPatternItem> &offeredItems)
{
    QStringList unknown;
    for (auto span = nextSpan(string, 0); span; span = nextSpan(string, span->end)) {
        const QString name = nameIn(string, *span);
        const auto item = std::ranges::find(offeredItems, name, &HRFPatternItem::editingString);
        if (!name.isEmpty() && item == offeredItems.end())
            unknown.append(name);
    }
    return unknown;
}
