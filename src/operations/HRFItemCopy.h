#pragma once

#include <QByteArray>

/// Copies a file, a symbolic link, or a folder with all that is in it, to a path where nothing is.
/// The copy keeps what HRFKeepAttributes keeps, and is on the disk when this returns. 0, or an
/// errno (EBUSY when another program changes the original meanwhile); after a failure, part of the
/// copy may be there.
int HRFCopyItem(const QByteArray &from, const QByteArray &to);
