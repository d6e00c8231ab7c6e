#pragma once

#include <QByteArray>

/// Renames an item within its volume, unless the new name is taken. 0, or an errno.
int HRFExclusiveRename(const QByteArray &from, const QByteArray &to);

/// The same for file systems that cannot do it in one step.
int HRFExclusiveRenameInSteps(const QByteArray &from, const QByteArray &to);
