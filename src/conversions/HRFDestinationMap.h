#pragma once

#include "operations/HRFTransfer.h"

#include <QHash>
#include <QSet>

#include <utility>

/// Which places are free for the files of a batch, as if the files before had been moved or copied
/// already. The disk is only looked at. A folder may be spelled in several ways.
class HRFDestinationMap
{
public:
    explicit HRFDestinationMap(HRFTransfer::Kind kind) : m_kind(kind) { }

    HRFTransfer::Kind kind() const { return m_kind; }
    /// To be told of all files of the batch first: none may take the place of another.
    void add(const HRFFileReference &file);
    /// Whether two paths lead to one place but for the case of letters.
    bool areSameButForCase(const HRFFileReference &one, const HRFFileReference &other);
    /// 0, or the errno that would come of bringing a file to a place; EEXIST when something is in
    /// its way.
    int obstacleTo(const HRFFileReference &place, const HRFFileReference &file);
    /// Whether what is in the way may be replaced: not a folder, nor a file of the batch.
    bool isReplaceable(const HRFFileReference &place);
    /// The first free place with a number in its name, and 0; else an errno.
    std::pair<HRFFileReference, int> numberedPlaceFor(const HRFFileReference &place,
                                                      const HRFFileReference &file);
    /// The file is at the place from now on.
    void take(const HRFFileReference &place, const HRFFileReference &file);

private:
    HRFFileReference resolved(const HRFFileReference &item);
    // All paths from here on are resolved ones:
    int obstacleInFolderOf(const HRFFileReference &place);
    int obstacleAt(const HRFFileReference &place, const HRFFileReference &file);
    void leave(const HRFFileReference &place);

    const HRFTransfer::Kind m_kind;
    QHash<QByteArray, HRFFileReference> m_resolvedFolders;
    QHash<QByteArray, bool> m_isTaken; ///< by a file of the batch; false where one has left
    QSet<QByteArray> m_neededFolders;
    QHash<QByteArray, int> m_folders; ///< what stands against files in folders; ENOENT for nothing
    QHash<QByteArray, int> m_lastNumbers; ///< up to which the numbered places of a place are taken
    QHash<QByteArray, QByteArray> m_numberedPlaces; ///< those, and what they are numbered places of
};
