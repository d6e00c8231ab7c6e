#include "app/HRFCommonValue.h"

#include "store/HRFMetaFile.h"

#include <algorithm>

namespace {

bool haveSame(const HRFListColumn &column, const HRFMetaFile &one, const HRFMetaFile &other)
{
    const QVariant value = column.value(one);
    const QVariant otherValue = column.value(other);
    // An empty box says the same, whether the file has a "no" or nothing.
    return column.kind == HRFListColumnKind::CheckBox ? value.toBool() == otherValue.toBool()
                                                      : value == otherValue;
}

} // namespace

HRFCommonValue HRFCommonValue::of(const HRFListColumn &column,
                                  const HRFArrayController::Records &records)
{
    HRFCommonValue common{.recordCount = qsizetype(records.size())};
    if (records.empty())
        return common;
    const HRFMetaFile &first = *records.front();
    common.isSame = std::ranges::all_of(
        records, [&](const HRFMetaFile *other) { return haveSame(column, first, *other); });
    if (common.isSame) {
        common.value = column.editedValue(first);
        common.text = column.text(first);
    }
    return common;
}
