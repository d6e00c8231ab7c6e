#pragma once

#include "operations/HRFTransfer.h"

#include <QHash>
#include <QSet>

#include <utility>

/// Which places are free for the files of a batch, as if the files before had been moved or copied
/// already. The disk is only looked at.
class HRFDestinationMap
{
public:
    explicit HRFDestinationMap(HRFTransfer::Kind kind) : m_kind(kind) { }

    HRFTransfer::Kind kind() const { return m_kind; }
    /// 0, or the errno that would come of bringing a file to a place; EEXIST when something is in
    /// its way.
    int obstacleTo(const HRFFileReference &place, const HRFFileReference &file);
    /// The first free place with a number in its name, and 0; else an errno.
    std::pair<HRFFileReference, int> numberedPlaceFor(const HRFFileReference &place,
                                                      const HRFFileReference &file);
    /// The file is at the place from now on.
    void take(const HRFFileReference &place, const HRFFileReference &file, bool replaces);
    /// Whether another file has taken the place of this one.
    bool isReplaced(const HRFFileReference &file) const
    {
        return m_replaced.contains(file.nativePath());
    }

private:
    int obstacleInFolderOf(const HRFFileReference &place);
    int obstacleAt(const HRFFileReference &place, const HRFFileReference &file);

    const HRFTransfer::Kind m_kind;
    QHash<QByteArray, bool> m_isTaken; ///< what is no more as it is on the disk
    QSet<QByteArray> m_replaced;
    QHash<QByteArray, int> m_folders; ///< what stands against files in folders; ENOENT for nothing
};
