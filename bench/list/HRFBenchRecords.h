#pragma once

#include <QString>

#include <memory>

class HRFMainContext;

/// Adds files to a list, as an import does: from another thread, through a private context that is
/// saved every 300 files. The values are those of the corpus's albums; the files are made below the
/// folder. Returns when the list is saved.
///
/// @param soundCount how many files are real, and can be written; the others are empty
void HRFInsertBenchRecords(const std::shared_ptr<HRFMainContext> &context, const QString &folder,
                           int count, int soundCount = 0);
