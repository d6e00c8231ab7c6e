#include "cli/HRFFileList.h"

#include "cli/HRFInterruption.h"
#include "kit/HRFError.h"
#include "tags/HRFTagEngine.h"

#include <QCollator>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

namespace {

/// The C locale compares bytes and knows no numbers.
QLocale collationLocale()
{
    const QLocale locale = QLocale::system();
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

/// Tells whether two paths lead to one file: device and inode.
using FileIdentity = std::pair<dev_t, ino_t>;

class FileCollector
{
public:
    FileCollector()
    {
        m_collator.setNumericMode(true);
        m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    }

    void addPath(const std::string &path);
    HRFFileList takeList() { return std::move(m_list); }

private:
    struct Entry
    {
        HRFFileReference file;
        bool isFolder;
        QCollatorSortKey sortKey;
    };

    void addFile(const HRFFileReference &file);
    void walk(const fs::path &folder);
    std::vector<Entry> sortedEntries(const fs::path &folder);
    void addProblem(const std::string &path, const std::error_code &error);

    QCollator m_collator{collationLocale()};
    HRFFileList m_list;
    std::set<FileIdentity> m_seen;
    std::size_t m_found = 0;
};

HRFFileReference reference(const std::string &path)
{
    return HRFFileReference::fromNativePath(QByteArray::fromStdString(path));
}

void FileCollector::addPath(const std::string &path)
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error)
        return addProblem(path, error);
    if (!fs::is_directory(status))
        return addFile(reference(path));
    const std::size_t before = m_found + m_list.problems.size();
    walk(path);
    if (m_found + m_list.problems.size() == before)
        m_list.problems.push_back(
            u"%1: The folder has no audio files"_s.arg(reference(path).displayPath()));
}

/// A file that cannot be examined is listed, so that working on it says why.
void FileCollector::addFile(const HRFFileReference &file)
{
    ++m_found;
    struct stat status = {};
    const bool isKnown = ::stat(file.nativePath().constData(), &status) == 0;
    if (!isKnown || m_seen.insert({status.st_dev, status.st_ino}).second)
        m_list.files.push_back(file);
}

void FileCollector::walk(const fs::path &folder)
{
    for (const Entry &entry : sortedEntries(folder)) {
        if (HRFInterruption::isRequested())
            return;
        if (entry.isFolder)
            walk(entry.file.nativePath().toStdString());
        else
            addFile(entry.file);
    }
}

std::vector<FileCollector::Entry> FileCollector::sortedEntries(const fs::path &folder)
{
    std::vector<Entry> entries;
    std::error_code error;
    fs::directory_iterator iterator(folder, error);
    while (!error && iterator != fs::directory_iterator()) {
        std::error_code ignored; // a link to nowhere is neither folder nor audio file
        const HRFFileReference file = reference(iterator->path().string());
        const bool isFolder = iterator->is_directory(ignored) && !iterator->is_symlink(ignored);
        const bool isAudio = iterator->is_regular_file(ignored)
            && HRFTagEngine::metaDataFileTypes().contains(file.lowerCaseExtension());
        if (isFolder || isAudio)
            entries.push_back({file, isFolder, m_collator.sortKey(file.displayName())});
        iterator.increment(error);
    }
    if (error)
        addProblem(folder.string(), error);
    std::ranges::sort(entries, [](const Entry &left, const Entry &right) {
        const int order = left.sortKey.compare(right.sortKey);
        return order != 0 ? order < 0 : left.file.nativePath() < right.file.nativePath();
    });
    return entries;
}

void FileCollector::addProblem(const std::string &path, const std::error_code &error)
{
    m_list.problems.push_back(u"%1: %2"_s.arg(reference(path).displayPath(),
                                              HRFError::fromErrno(error.value()).description));
}

} // namespace

HRFFileList HRFCollectFiles(const std::vector<std::string> &paths)
{
    FileCollector collector;
    for (const std::string &path : paths)
        collector.addPath(path);
    return collector.takeList();
}
