#pragma once

#include "kit/HRFFileReference.h"

#include <QString>

#include <optional>

/// Files by identity: a reference URL names a file by device and inode
/// ("file:///.file/id=DEVICE.INODE", decimal), whatever it is called. A file that was given the
/// inode of a deleted one, which its time of birth tells, has another reference (".2" at its end,
/// and so on); one that this program put in the place of another has the reference of that.
///
/// The table remembers the last known path of every reference that it made. All members may be
/// called from any thread.
namespace HRFFileReferenceTable {

/// The reference URL of an existing file; nothing when it cannot be examined. Hard links of one
/// file have one reference, which leads to the one that was asked for first.
std::optional<QString> referenceURLForFile(const HRFFileReference &file);

/// The present path of the file with a reference URL: the last known path when that still is the
/// file, else another name of it in the same folder, else nothing. A path URL gives its path.
std::optional<HRFFileReference> fileForURL(const QString &url);

/// The last known path: nothing is looked up on the disk. Nothing for a reference that this process
/// has not made.
std::optional<HRFFileReference> lastKnownFileForURL(const QString &url);

/// The folder of the last known path, for display: nothing is looked up on the disk. Nothing for a
/// reference that this process has not made; a path URL gives the folder of its path.
std::optional<QString> lastKnownFolderForURL(const QString &url);

/// Lets the reference of a file that has several paths lead to this one from now on.
void preferPath(const HRFFileReference &file);

/// To be told when this program has moved a file to another file system, where it is another one:
/// it keeps its reference.
void fileDidBecome(const QString &referenceURL, const HRFFileReference &file);

/// To be told when this program has moved a file.
void fileDidMove(const HRFFileReference &from, const HRFFileReference &to);
/// The same for a move within a file system, where the reference is known: nothing has to be looked
/// up on the disk.
void fileWithURLDidMove(const QString &referenceURL, const HRFFileReference &to);

/// To be told that a file which this program has just made will take the place of another, whose
/// reference it is to have. Both are open. Until fileDidReplace() the one or the other is the file
/// with that reference.
void fileWillReplace(int replacement, int original);
/// @param hasReplaced false when the old file stays
void fileDidReplace(int replacement, int original, bool hasReplaced);

} // namespace HRFFileReferenceTable
