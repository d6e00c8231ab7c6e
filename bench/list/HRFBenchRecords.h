#pragma once

#include <QString>

#include <memory>

class HRFMainContext;

/// Adds the files of the corpus's albums to a list, as an import does: from another thread, through
/// a private context that is saved every 300 files. The values are made up, the files are empty.
class HRFBenchRecords
{
public:
    /// Makes the files below the folder.
    HRFBenchRecords(const QString &folder, int count);

    /// Returns when the list is saved.
    void insertInto(const std::shared_ptr<HRFMainContext> &context) const;

private:
    QString fileName(int number) const;

    QString m_folder;
    int m_count;
};
