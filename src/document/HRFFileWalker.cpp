#include "document/HRFFileWalker.h"

#include "kit/HRFCollation.h"
#include "kit/HRFFileReferenceTable.h"
#include "operations/HRFItemMove.h"
#include "tags/HRFTagEngine.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

struct Entry
{
    HRFFileReference file;
    bool isFolder;
    QCollatorSortKey sortKey;
};

class Walk
{
public:
    Walk(const std::function<bool()> &isCancelled, const std::function<void()> &didFindFirst)
        : m_isCancelled(isCancelled), m_didFindFirst(didFindFirst)
    {
    }

    void addPath(const HRFFileReference &path);
    HRFFoundFiles takeFound() { return std::move(m_found); }

private:
    void addFile(const HRFFileReference &file);
    void addFolder(const HRFFileReference &folder);
    void walk(const HRFFileReference &folder);
    std::vector<Entry> sortedEntries(const HRFFileReference &folder);
    void addProblem(const HRFFileReference &file, const HRFError &error)
    {
        m_found.problems.push_back({file, error});
    }

    const std::function<bool()> &m_isCancelled;
    const std::function<void()> &m_didFindFirst;
    const QCollator m_collator = HRFCollation::naturalOrder();
    HRFFoundFiles m_found;
    QSet<QString> m_urls; ///< of the files found
    std::size_t m_reached = 0; ///< files, counted every time
};

fs::path nativePath(const HRFFileReference &file)
{
    return file.nativePath().toStdString();
}

bool isHandled(const HRFFileReference &file)
{
    return HRFTagEngine::metaDataFileTypes().contains(file.lowerCaseExtension());
}

HRFError noAudioFilesError(const HRFFileReference &folder)
{
    return {.domain = QString::fromLatin1(HRFTagEngineErrorDomain),
            .code = HRFTagEngineErrorCode::noEngine,
            .description =
                QCoreApplication::translate("HRFFileWalker", "The folder has no audio files"),
            .path = folder.displayPath()};
}

void Walk::addPath(const HRFFileReference &path)
{
    std::error_code error;
    const fs::file_status status = fs::status(nativePath(path), error);
    if (error)
        addProblem(path, HRFError::fromErrno(error.value()));
    else if (fs::is_directory(status))
        addFolder(path);
    else if (isHandled(path))
        addFile(path);
    else if (const auto engine = HRFTagEngine::initWithURL(path); !engine)
        addProblem(path, engine.error());
}

void Walk::addFile(const HRFFileReference &file)
{
    const std::optional<QString> url = HRFFileReferenceTable::referenceURLForFile(file);
    if (!url)
        return addProblem(file, HRFError::fromErrno(errno));
    ++m_reached;
    if (m_urls.contains(*url))
        return;
    m_urls.insert(*url);
    m_found.files.push_back({file, *url});
    if (m_found.files.size() == 1)
        m_didFindFirst();
}

void Walk::addFolder(const HRFFileReference &folder)
{
    const std::size_t before = m_reached + m_found.problems.size();
    walk(folder);
    if (m_reached + m_found.problems.size() == before && !m_isCancelled())
        addProblem(folder, noAudioFilesError(folder));
}

void Walk::walk(const HRFFileReference &folder)
{
    for (const Entry &entry : sortedEntries(folder)) {
        if (m_isCancelled())
            return;
        if (entry.isFolder)
            walk(entry.file);
        else
            addFile(entry.file);
    }
}

std::vector<Entry> Walk::sortedEntries(const HRFFileReference &folder)
{
    std::vector<Entry> entries;
    std::error_code error;
    fs::directory_iterator iterator(nativePath(folder), error);
    while (!error && iterator != fs::directory_iterator()) {
        std::error_code ignored; // a link to nowhere is neither folder nor audio file
        const auto file =
            HRFFileReference::fromNativePath(QByteArray::fromStdString(iterator->path().string()));
        const QByteArray name = QByteArray::fromStdString(iterator->path().filename().string());
        const bool isFolder = iterator->is_directory(ignored) && !iterator->is_symlink(ignored)
            && !HRFIsNameOfUnfinishedWork(name);
        const bool isAudio = iterator->is_regular_file(ignored) && isHandled(file);
        if (isFolder || isAudio)
            entries.push_back({file, isFolder, m_collator.sortKey(file.displayName())});
        iterator.increment(error);
    }
    if (error)
        addProblem(folder, HRFError::fromErrno(error.value()));
    std::ranges::sort(entries, [](const Entry &left, const Entry &right) {
        const int order = left.sortKey.compare(right.sortKey);
        return order != 0 ? order < 0 : left.file.nativePath() < right.file.nativePath();
    });
    return entries;
}

} // namespace

HRFFoundFiles HRFFileWalker::find(const std::vector<HRFFileReference> &paths,
                                  const std::function<bool()> &isCancelled,
                                  const std::function<void()> &didFindFirst)
{
    Walk walk(isCancelled, didFindFirst);
    for (const HRFFileReference &path : paths)
        if (!isCancelled())
            walk.addPath(path);
    return walk.takeFound();
}
