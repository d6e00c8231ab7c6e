#pragma once

#include "app/HRFRowChange.h"
#include "document/HRFArrayController.h"

#include <QAbstractTableModel>
#include <QHash>

class HRFPlaylist;
class HRFThumbnails;

/// The shown records of a list as rows, the columns of HRFListColumns as columns. Values are taken
/// from the records when they are asked for; what is set is an edit of the record.
class HRFListModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Role {
        Raw = Qt::UserRole, ///< the value itself
        Thumbnail, ///< QPixmap; null when there is none, or none yet
    };

    HRFListModel(HRFPlaylist &list, HRFThumbnails &thumbnails);

    HRFMetaFile &recordAt(int row) const { return *m_records[std::size_t(row)]; }
    /// The rows of those records that are shown, in ascending order.
    std::vector<int> rowsOf(const HRFArrayController::Records &records) const;
    /// Rows are coming or going: what views make of that is no wish of the user.
    bool isChangingRows() const { return m_isChangingRows; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    void takeArrangement();
    void insertRanges(const std::vector<HRFRowRange> &ranges,
                      const HRFArrayController::Records &arranged);
    void removeRanges(const std::vector<HRFRowRange> &ranges);
    void contextDidChange(const HRFContextChanges &changes);
    QVariant thumbnailAt(int row) const;
    void findRows() const;

    HRFPlaylist &m_list;
    HRFThumbnails &m_thumbnails;
    HRFArrayController::Records m_records;
    /// The row of each record; empty until it is asked for after a new arrangement.
    mutable QHash<const HRFMetaFile *, int> m_rowOf;
    bool m_isChangingRows = false;
};
