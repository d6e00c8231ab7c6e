#include "app/HRFListModel.h"

#include "app/HRFListColumn.h"
#include "app/HRFThumbnails.h"
#include "document/HRFPlaylist.h"
#include "store/HRFMetaFile.h"

#include <QPixmap>
#include <QScopedValueRollback>

#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;
using Kind = HRFListColumnKind;
using Records = HRFArrayController::Records;

namespace {

/// More ranges than these are told of as one great change.
constexpr std::size_t mostRanges = 16;

const HRFListColumn &columnAt(int section)
{
    return HRFListColumns::all()[std::size_t(section)];
}

/// The file whose record an object belongs to.
HRFMetaFile *fileOf(HRFManagedObject *object)
{
    const auto *toFile = object->entity().relationshipNamed(u"parentMetaFile"_s);
    return dynamic_cast<HRFMetaFile *>(toFile ? object->related(toFile->index) : object);
}

QVariant displayed(const HRFListColumn &column, const HRFMetaFile &file)
{
    const bool isText = column.kind != Kind::CheckBox && column.kind != Kind::Rating;
    return isText ? column.text(file) : QVariant();
}

} // namespace

HRFListModel::HRFListModel(HRFPlaylist &list, HRFThumbnails &thumbnails)
    : m_list(list), m_thumbnails(thumbnails), m_records(list.fileController().arrangedObjects())
{
    connect(&list.fileController(), &HRFArrayController::arrangementDidChange, this,
            &HRFListModel::takeArrangement);
    connect(&list.managedObjectContext(), &HRFMainContext::objectsDidChange, this,
            &HRFListModel::contextDidChange);
}

int HRFListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_records.size());
}

int HRFListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(HRFListColumns::all().size());
}

QVariant HRFListModel::data(const QModelIndex &index, int role) const
{
    const HRFListColumn &column = columnAt(index.column());
    if (column.kind == Kind::Thumbnail)
        return role == Thumbnail ? thumbnailAt(index.row()) : QVariant();
    const HRFMetaFile &file = recordAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return displayed(column, file);
    case Qt::AccessibleTextRole:
        return column.text(file);
    case Qt::EditRole:
        return column.editedValue(file);
    case Raw:
        return column.value(file);
    case Qt::CheckStateRole:
        return column.kind == Kind::CheckBox
            ? QVariant(column.value(file).toBool() ? Qt::Checked : Qt::Unchecked)
            : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignVCenter | (column.isQuantity() ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

QVariant HRFListModel::thumbnailAt(int row) const
{
    const HRFMetaFile &file = recordAt(row);
    return m_thumbnails.thumbnail(file.artworkMD5(), file.fileURL());
}

bool HRFListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const HRFListColumn &column = columnAt(index.column());
    if (!column.isEditable() || (role != Qt::EditRole && role != Qt::CheckStateRole))
        return false;
    const HRFMetaFile &file = recordAt(index.row());
    const QVariant given =
        role == Qt::CheckStateRole ? QVariant(value.toInt() == Qt::Checked) : value;
    if (column.setValue(file, given))
        m_list.setUndoActionName(column.undoActionName());
    return true;
}

QVariant HRFListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const HRFListColumn &column = columnAt(section);
    switch (role) {
    case Qt::DisplayRole:
        return column.kind == Kind::Thumbnail ? QString() : column.title;
    case Qt::AccessibleTextRole:
        return column.title;
    case Qt::ToolTipRole:
        return column.attribute() && !column.attribute()->localizedDescription().isEmpty()
            ? column.title + u'\n' + column.attribute()->localizedDescription()
            : column.title;
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignVCenter | (column.isQuantity() ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

Qt::ItemFlags HRFListModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags =
        Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren | Qt::ItemIsDragEnabled;
    const HRFListColumn &column = columnAt(index.column());
    if (column.kind == Kind::CheckBox)
        flags |= Qt::ItemIsUserCheckable;
    else if (column.isEditable())
        flags |= Qt::ItemIsEditable;
    return flags;
}

void HRFListModel::findRows() const
{
    if (!m_rowOf.isEmpty())
        return;
    m_rowOf.reserve(qsizetype(m_records.size()));
    for (std::size_t row = 0; row < m_records.size(); ++row)
        m_rowOf.insert(m_records[row], int(row));
}

std::vector<int> HRFListModel::rowsOf(const Records &records) const
{
    findRows();
    std::vector<int> rows;
    for (const HRFMetaFile *record : records)
        if (const auto found = m_rowOf.constFind(record); found != m_rowOf.cend())
            rows.push_back(*found);
    std::ranges::sort(rows);
    const auto repeated = std::ranges::unique(rows);
    rows.erase(repeated.begin(), repeated.end());
    return rows;
}

void HRFListModel::takeArrangement()
{
    const QScopedValueRollback isChangingRows(m_isChangingRows, true);
    const Records &arranged = m_list.fileController().arrangedObjects();
    if (const auto added = HRFRowsLeftOut(arranged, m_records, mostRanges))
        return insertRanges(*added, arranged);
    if (const auto gone = HRFRowsLeftOut(m_records, arranged, mostRanges))
        return removeRanges(*gone);
    beginResetModel();
    m_records = arranged;
    m_rowOf.clear();
    endResetModel();
}

void HRFListModel::insertRanges(const std::vector<HRFRowRange> &ranges, const Records &arranged)
{
    for (const HRFRowRange range : ranges) {
        beginInsertRows({}, range.first, range.last);
        m_records.insert(m_records.begin() + range.first, arranged.begin() + range.first,
                         arranged.begin() + range.last + 1);
        m_rowOf.clear();
        endInsertRows();
    }
}

void HRFListModel::removeRanges(const std::vector<HRFRowRange> &ranges)
{
    for (const HRFRowRange range : std::views::reverse(ranges)) {
        beginRemoveRows({}, range.first, range.last);
        m_records.erase(m_records.begin() + range.first, m_records.begin() + range.last + 1);
        m_rowOf.clear();
        endRemoveRows();
    }
}

void HRFListModel::contextDidChange(const HRFContextChanges &changes)
{
    if (changes.updated.empty())
        return;
    Records changed;
    for (const HRFObjectChange &change : changes.updated)
        changed.push_back(fileOf(change.object));
    std::vector<HRFRowRange> ranges = HRFRangesOfRows(rowsOf(changed));
    if (ranges.size() > mostRanges)
        ranges = {{ranges.front().first, ranges.back().last}};
    for (const HRFRowRange range : ranges)
        Q_EMIT dataChanged(index(range.first, 0), index(range.last, columnCount() - 1));
}
