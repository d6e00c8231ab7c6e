#pragma once

#include <QByteArray>

/// Whether a folder with this name, whatever its path, may be unfinished work that a killed program
/// has left behind.
bool HRFIsNameOfUnfinishedWork(const QByteArray &name);

/// Both work on files, symbolic links (the link is the item, not what it leads to) and folders.
/// Whatever happens in the middle, nothing but a whole item ever stands at the new path, and the
/// old one stays until then. What another program may find of unfinished work is a hidden folder
/// ".lirra-..." beside the new path. The folder of the new path must exist.
///
/// @param replaces whether to take the place of what is at the new path; not of a folder with
/// something in it. Without, it is left alone (EEXIST).
/// @return 0, or an errno

/// Renames an item; on another file system, copies it and removes the original.
int HRFMoveItem(const QByteArray &from, const QByteArray &to, bool replaces);
int HRFCopyItemIntoPlace(const QByteArray &from, const QByteArray &to, bool replaces);
