#pragma once

#include <QSet>
#include <QString>

class HRFFileOperation;
class HRFMetaFile;

/// Whether refreshing a record from this operation means to read its file, all tags of it.
bool HRFReadsFileAnew(const HRFFileOperation &operation);

/// Refreshes a record of a private context from an operation that has succeeded on its file.
///
/// @param newerTags tags that were edited since, and are not in the file yet: they stay
void HRFUpdateWithOperation(HRFMetaFile &file, const HRFFileOperation &operation,
                            const QSet<QString> &newerTags = {});
