#include "app/HRFCommonValue.h"

#include "store/HRFMetaFile.h"

#include <algorithm>

namespace {

bool has(const HRFMetaFile &file, const HRFListColumn &column, const QVariant &value)
{
    const QVariant present = column.value(file);
    // An empty box says the same, whether the file has a "no" or nothing.
    return column.kind == HRFListColumnKind::CheckBox ? present.toBool() == value.toBool()
                                                      : present == value;
}

} // namespace

HRFCommonValue HRFCommonValue::of(const HRFListColumn &column,
                                  const HRFArrayController::Records &records)
{
    HRFCommonValue common{.recordCount = qsizetype(records.size())};
    if (records.empty())
        return common;
    const HRFMetaFile &first = *records.front();
    const QVariant value = column.value(first);
    common.isSame = std::ranges::all_of(
        records, [&](const HRFMetaFile *file) { return has(*file, column, value); });
    if (common.isSame) {
        common.value = column.editedValue(first);
        common.text = column.text(first);
    }
    return common;
}
