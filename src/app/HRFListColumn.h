#pragma once

#include "document/HRFRecordColumn.h"

#include <optional>
#include <vector>

/// How a column shows its values and lets them be edited.
enum class HRFListColumnKind { Thumbnail, Text, Number, Date, CheckBox, Rating };

/// One column that a list can have: the picture of a file, or an attribute of the catalogue.
struct HRFListColumn
{
    QString name; ///< of the attribute, or "artwork"; the column's name in settings
    QString title;
    HRFListColumnKind kind;
    std::optional<HRFRecordColumn> values; ///< nothing for the picture

    const HRFAttributeDescription *attribute() const;
    bool isEditable() const;
    /// A number of something: it stands on the right.
    bool isQuantity() const;

    /// No value for the picture.
    QVariant value(const HRFMetaFile &file) const;
    /// The value as one line of text, whatever the column's cells look like.
    QString text(const HRFMetaFile &file) const;

    /// The value as it is edited: names as they are shown, with "/".
    QVariant editedValue(const HRFMetaFile &file) const;
    /// Edits the record, for columns that are editable. Answers whether that changes anything.
    bool setValue(const HRFMetaFile &file, const QVariant &edited) const;
    QString undoActionName() const;
};

/// A titled part of the catalogue.
struct HRFListColumnGroup
{
    QString title;
    std::vector<int> columns;
};

/// All columns of a list, numbered in the order of the catalogue. They do not change.
namespace HRFListColumns {

const std::vector<HRFListColumn> &all();
/// -1 when there is none.
int indexOf(const QString &name);
const std::vector<HRFListColumnGroup> &groups();

} // namespace HRFListColumns
