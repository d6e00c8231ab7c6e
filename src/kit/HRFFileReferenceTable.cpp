#include "kit/HRFFileReferenceTable.h"

#include <QHash>
#include <QSet>

#include <chrono>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <memory>
#include <mutex>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto referencePrefix = "file:///.file/id="_L1;

struct Identity
{
    quint64 device = 0;
    quint64 inode = 0;

    friend bool operator==(const Identity &, const Identity &) = default;
    friend std::size_t qHash(const Identity &identity, std::size_t seed = 0) noexcept
    {
        return qHashMulti(seed, identity.device, identity.inode);
    }
};

/// An existing file. File systems give the inode of a deleted file to the next one made, so that
/// only the time of its birth tells a file from the one before it.
struct File
{
    Identity identity{};
    qint64 birth = 0; ///< nanoseconds since 1970; 0 where the file system keeps none

    friend bool operator==(const File &, const File &) = default;
};

/// A path in two halves, so that the files of one folder share the first.
struct Place
{
    QByteArray folder; ///< with the slash at its end
    QByteArray name;

    static Place of(const QByteArray &path)
    {
        const qsizetype nameStart = path.lastIndexOf('/') + 1;
        return {path.first(nameStart), path.sliced(nameStart)};
    }
    QByteArray path() const { return folder + name; }

    friend bool operator==(const Place &, const Place &) = default;
};

/// Names a known file: the identity that it had first, and which of the files that have had it.
struct Reference
{
    Identity identity;
    quint32 generation = 1;

    friend bool operator==(const Reference &, const Reference &) = default;
    friend std::size_t qHash(const Reference &reference, std::size_t seed) noexcept
    {
        return qHashMulti(seed, reference.identity, reference.generation);
    }
};

/// A file that has a reference.
struct Known
{
    Place place;
    File file;
};

std::optional<File> fileAt(const QByteArray &path);

/// Every file of every open list stands here, so an entry is small.
class Table
{
public:
    static Table &shared()
    {
        static auto *const table = new Table; // threads may ask until the very end
        return *table;
    }

    /// The reference of a file that was found at a place; nothing when another has taken that.
    std::optional<Reference> insert(const File &file, const Place &place)
    {
        const std::lock_guard guard(m_lock);
        const Reference last = lastReferenceOf(file.identity);
        const auto found = m_files.find(last);
        if (found == m_files.end())
            return insertNew(file, place);
        if (found->file != file && m_successors.value(last) != file)
            return fileAt(place.path()) == file ? std::optional(insertNew(file, place))
                                                : std::nullopt;
        // The path of a file that has several is the one that was known first.
        if (found->place != place && fileAt(found->place.path()) != file)
            found->place = withSharedFolder(place);
        return last;
    }
    std::optional<Known> find(const Reference &reference) const
    {
        const std::lock_guard guard(m_lock);
        const auto found = m_files.constFind(reference);
        return found == m_files.cend() ? std::nullopt : std::optional(*found);
    }
    /// Unless another thread has put the file elsewhere meanwhile.
    void move(const Reference &reference, const Place &oldPlace, const Place &newPlace)
    {
        const std::lock_guard guard(m_lock);
        const auto found = m_files.find(reference);
        if (found != m_files.end() && found->place == oldPlace)
            found->place = withSharedFolder(newPlace);
    }
    void put(const File &file, const Place &place)
    {
        const std::lock_guard guard(m_lock);
        const auto found = m_files.find(lastReferenceOf(file.identity));
        if (found != m_files.end() && found->file == file)
            found->place = withSharedFolder(place);
    }
    std::optional<Reference> referenceOf(const File &file) const
    {
        const std::lock_guard guard(m_lock);
        const Reference last = lastReferenceOf(file.identity);
        const auto found = m_files.constFind(last);
        return found == m_files.cend() || found->file != file ? std::nullopt : std::optional(last);
    }
    /// Lets a reference lead to a file that has taken over from its own.
    void hand(const Reference &reference, const File &file, const Place &place)
    {
        const std::lock_guard guard(m_lock);
        const auto found = m_files.find(reference);
        if (found == m_files.end() || found->file == file)
            return;
        *found = {withSharedFolder(place), file};
        m_lastReferences.insert(file.identity, reference);
    }
    bool isSuccessor(const Reference &reference, const File &file) const
    {
        const std::lock_guard guard(m_lock);
        const auto found = m_successors.constFind(reference);
        return found != m_successors.cend() && *found == file;
    }
    /// @param successor has just been made: who was known as that is gone
    void expectSuccessor(const File &file, const File &successor)
    {
        const std::lock_guard guard(m_lock);
        const auto gone = m_files.find(lastReferenceOf(successor.identity));
        if (gone != m_files.end() && gone->file == successor)
            gone->file = {};
        const Reference reference = lastReferenceOf(file.identity);
        const auto found = m_files.constFind(reference);
        if (found == m_files.cend() || found->file != file)
            return;
        m_successors.insert(reference, successor);
        m_lastReferences.insert(successor.identity, reference);
    }
    void endSuccession(const File &file, const File &successor, bool hasSucceeded)
    {
        const std::lock_guard guard(m_lock);
        const Reference reference = lastReferenceOf(file.identity);
        if (m_successors.remove(reference) == 0)
            return;
        if (hasSucceeded)
            m_files[reference].file = successor;
        else
            m_lastReferences.remove(successor.identity);
    }

private:
    Reference lastReferenceOf(const Identity &identity) const
    {
        return m_lastReferences.value(identity, Reference{identity});
    }
    Reference insertNew(const File &file, const Place &place)
    {
        Reference reference{file.identity};
        while (m_files.contains(reference))
            ++reference.generation;
        m_files.insert(reference, {withSharedFolder(place), file});
        if (reference != lastReferenceOf(file.identity))
            m_lastReferences.insert(file.identity, reference);
        return reference;
    }
    Place withSharedFolder(const Place &place)
    {
        return {*m_folders.insert(place.folder), place.name};
    }

    mutable std::mutex m_lock; ///< guards what follows
    QHash<Reference, Known> m_files;
    /// Of the identities that more than one file has had, or that a replacing file has.
    QHash<Identity, Reference> m_lastReferences;
    /// Of files that are being replaced.
    QHash<Reference, File> m_successors;
    QSet<QByteArray> m_folders;
};

/// In an overlay a file is born anew when it is first changed.
bool keepsBirthTimes(quint64 device, const QByteArray &path)
{
    static std::mutex lock; // guards the answers
    static QHash<quint64, bool> answers;
    const std::lock_guard guard(lock);
    auto answer = answers.find(device);
    if (answer == answers.end()) {
        struct statfs system = {};
        const bool isKnown = ::statfs(path.constData(), &system) == 0;
        answer = answers.insert(device, isKnown && system.f_type != OVERLAYFS_SUPER_MAGIC);
    }
    return *answer;
}

std::optional<File> fileAt(const QByteArray &path)
{
    struct statx status = {};
    if (::statx(AT_FDCWD, path.constData(), AT_STATX_SYNC_AS_STAT, STATX_INO | STATX_BTIME, &status)
        != 0)
        return {};
    constexpr qint64 nanosecondsPerSecond = 1'000'000'000;
    const quint64 device = ::makedev(status.stx_dev_major, status.stx_dev_minor);
    const bool hasBirth = (status.stx_mask & STATX_BTIME) && keepsBirthTimes(device, path);
    return File{{device, status.stx_ino},
                hasBirth ? status.stx_btime.tv_sec * nanosecondsPerSecond + status.stx_btime.tv_nsec
                         : 0};
}

std::optional<File> fileOfDescriptor(int descriptor)
{
    return fileAt("/proc/self/fd/" + QByteArray::number(descriptor));
}

/// The working folder may be another one later.
QByteArray absolutePath(const QByteArray &path)
{
    if (path.startsWith('/'))
        return path;
    const std::unique_ptr<char, decltype(&std::free)> folder(::getcwd(nullptr, 0), &std::free);
    return folder ? QByteArray(folder.get()) + '/' + path : path;
}

QString referenceURL(const Reference &reference)
{
    const QString url = referencePrefix + QString::number(reference.identity.device) + u'.'
        + QString::number(reference.identity.inode);
    return reference.generation == 1 ? url : url + u'.' + QString::number(reference.generation);
}

/// Nothing for a URL that is no reference.
std::optional<Reference> referenceFromURL(QStringView url)
{
    if (!url.startsWith(referencePrefix))
        return {};
    const auto numbers = url.sliced(referencePrefix.size()).split(u'.');
    if (numbers.size() < 2 || numbers.size() > 3)
        return {};
    bool isDevice = false;
    bool isInode = false;
    bool isGeneration = true;
    const Reference reference{{numbers[0].toULongLong(&isDevice), numbers[1].toULongLong(&isInode)},
                              numbers.size() == 3 ? numbers[2].toUInt(&isGeneration) : 1};
    return isDevice && isInode && isGeneration ? std::optional(reference) : std::nullopt;
}

struct FolderCloser
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

/// The names in a folder. The listing used last is kept, since many files of a folder may be looked
/// for one after the other.
class FolderListing
{
public:
    static std::optional<Place> find(const QByteArray &folder, const File &file)
    {
        static std::mutex lock; // guards the listing
        static FolderListing listing;
        const std::lock_guard guard(lock);
        const bool isOfFolder = listing.m_folder == folder;
        if (const auto found = isOfFolder ? listing.find(file) : std::nullopt)
            return found;
        if (isOfFolder && listing.isUpToDate())
            return {};
        listing = FolderListing(folder);
        return listing.find(file);
    }

private:
    FolderListing() = default;
    explicit FolderListing(const QByteArray &path) : m_folder(path), m_changed(timeOfChange(path))
    {
        const std::unique_ptr<DIR, FolderCloser> folder(::opendir(path.constData()));
        while (const dirent *entry = folder ? ::readdir(folder.get()) : nullptr) {
            if (entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN)
                m_links.append(entry->d_name);
            else
                m_namesByInode.insert(entry->d_ino, entry->d_name);
        }
        // Changes that follow each other quickly may bear the same time.
        constexpr auto tick = std::chrono::milliseconds(100);
        m_isSettled = std::chrono::system_clock::now().time_since_epoch() > m_changed + tick;
    }

    std::optional<Place> find(const File &file) const
    {
        for (const QByteArray &name : m_namesByInode.values(file.identity.inode) + m_links)
            if (fileAt(m_folder + name) == file)
                return Place{m_folder, name};
        return {};
    }

    bool isUpToDate() const { return m_isSettled && timeOfChange(m_folder) == m_changed; }
    static std::chrono::nanoseconds timeOfChange(const QByteArray &folder)
    {
        struct stat status = {};
        ::stat(folder.constData(), &status);
        return std::chrono::seconds(status.st_mtim.tv_sec)
            + std::chrono::nanoseconds(status.st_mtim.tv_nsec);
    }

    QByteArray m_folder;
    std::chrono::nanoseconds m_changed{};
    bool m_isSettled = false;
    QMultiHash<quint64, QByteArray> m_namesByInode;
    QByteArrayList m_links; ///< names of which the inode is not that of the file
};

std::optional<HRFFileReference> fileWithReference(const Reference &reference)
{
    while (const std::optional<Known> known = Table::shared().find(reference)) {
        const std::optional<File> present = fileAt(known->place.path());
        if (present
            && (*present == known->file || Table::shared().isSuccessor(reference, *present)))
            return HRFFileReference::fromNativePath(known->place.path());
        if (const auto found = FolderListing::find(known->place.folder, known->file)) {
            Table::shared().move(reference, known->place, *found);
            return HRFFileReference::fromNativePath(found->path());
        }
        const bool wasReplacedMeanwhile = Table::shared().find(reference)->file != known->file;
        if (!wasReplacedMeanwhile)
            break;
    }
    return {};
}

std::optional<HRFFileReference> fileWithPathURL(const QString &url)
{
    const QUrl pathURL(url);
    return pathURL.isLocalFile() ? std::optional(HRFFileReference::fromUrl(pathURL)) : std::nullopt;
}

} // namespace

std::optional<QString> HRFFileReferenceTable::referenceURLForFile(const HRFFileReference &file)
{
    const Place place = Place::of(absolutePath(file.nativePath()));
    while (const std::optional<File> present = fileAt(file.nativePath()))
        if (const auto reference = Table::shared().insert(*present, place))
            return referenceURL(*reference);
    return {};
}

std::optional<HRFFileReference> HRFFileReferenceTable::fileForURL(const QString &url)
{
    if (!url.startsWith(referencePrefix))
        return fileWithPathURL(url);
    const std::optional<Reference> reference = referenceFromURL(url);
    return reference ? fileWithReference(*reference) : std::nullopt;
}

std::optional<HRFFileReference> HRFFileReferenceTable::lastKnownFileForURL(const QString &url)
{
    if (!url.startsWith(referencePrefix))
        return fileWithPathURL(url);
    const std::optional<Reference> reference = referenceFromURL(url);
    const auto known = reference ? Table::shared().find(*reference) : std::nullopt;
    return known ? std::optional(HRFFileReference::fromNativePath(known->place.path()))
                 : std::nullopt;
}

std::optional<QString> HRFFileReferenceTable::lastKnownFolderForURL(const QString &url)
{
    const auto folderOf = [](const Place &place) {
        const bool isRoot = place.folder.size() <= 1;
        return QString::fromUtf8(isRoot ? place.folder : place.folder.chopped(1));
    };
    const std::optional<HRFFileReference> file = lastKnownFileForURL(url);
    return file ? std::optional(folderOf(Place::of(file->nativePath()))) : std::nullopt;
}

void HRFFileReferenceTable::preferPath(const HRFFileReference &file)
{
    if (const auto present = fileAt(file.nativePath()))
        Table::shared().put(*present, Place::of(absolutePath(file.nativePath())));
}

void HRFFileReferenceTable::fileDidBecome(const QString &referenceURL, const HRFFileReference &file)
{
    const std::optional<File> present = fileAt(file.nativePath());
    const std::optional<Reference> reference = referenceFromURL(referenceURL);
    if (present && reference)
        Table::shared().hand(*reference, *present, Place::of(absolutePath(file.nativePath())));
}

void HRFFileReferenceTable::fileDidMove(const HRFFileReference &from, const HRFFileReference &to)
{
    const std::optional<File> file = fileAt(to.nativePath());
    const auto reference = file ? Table::shared().referenceOf(*file) : std::nullopt;
    const auto known = reference ? Table::shared().find(*reference) : std::nullopt;
    if (!known)
        return;
    // A hard link that was moved is not where the file is known to be.
    const bool hasMoved = known->place.path() == absolutePath(from.nativePath())
        || fileAt(known->place.path()) != file;
    if (hasMoved)
        Table::shared().move(*reference, known->place, Place::of(absolutePath(to.nativePath())));
}

void HRFFileReferenceTable::fileWithURLDidMove(const QString &referenceURL,
                                               const HRFFileReference &to)
{
    const std::optional<Reference> reference = referenceFromURL(referenceURL);
    const auto known = reference ? Table::shared().find(*reference) : std::nullopt;
    if (known)
        Table::shared().move(*reference, known->place, Place::of(absolutePath(to.nativePath())));
}

void HRFFileReferenceTable::fileWillReplace(int replacement, int original)
{
    const std::optional<File> successor = fileOfDescriptor(replacement);
    const std::optional<File> file = fileOfDescriptor(original);
    if (successor && file)
        Table::shared().expectSuccessor(*file, *successor);
}

void HRFFileReferenceTable::fileDidReplace(int replacement, int original, bool hasReplaced)
{
    const std::optional<File> successor = fileOfDescriptor(replacement);
    const std::optional<File> file = fileOfDescriptor(original);
    if (successor && file)
        Table::shared().endSuccession(*file, *successor, hasReplaced);
}
