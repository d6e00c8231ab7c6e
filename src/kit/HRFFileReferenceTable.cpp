#include "kit/HRFFileReferenceTable.h"

#include <QHash>
#include <QSet>

#include <cstdlib>
#include <dirent.h>
#include <memory>
#include <mutex>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto referencePrefix = "file:///.file/id="_L1;

struct Identity
{
    quint64 device = 0;
    quint64 inode = 0;

    friend bool operator==(const Identity &, const Identity &) = default;
    friend std::size_t qHash(const Identity &identity, std::size_t seed) noexcept
    {
        return qHashMulti(seed, identity.device, identity.inode);
    }
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

/// Every file of every open list stands here, so an entry is small.
class Table
{
public:
    static Table &shared()
    {
        static Table table;
        return table;
    }

    void insert(const Identity &identity, const Place &place)
    {
        const std::lock_guard guard(m_lock);
        m_places.insert(identity, withSharedFolder(place));
    }
    std::optional<Place> place(const Identity &identity) const
    {
        const std::lock_guard guard(m_lock);
        const auto found = m_places.constFind(identity);
        return found == m_places.cend() ? std::nullopt : std::optional(*found);
    }
    /// Unless another thread has put the file elsewhere meanwhile.
    void replace(const Identity &identity, const Place &oldPlace, const Place &newPlace)
    {
        const std::lock_guard guard(m_lock);
        const auto found = m_places.find(identity);
        if (found != m_places.end() && *found == oldPlace)
            *found = withSharedFolder(newPlace);
    }

private:
    Place withSharedFolder(const Place &place)
    {
        return {*m_folders.insert(place.folder), place.name};
    }

    mutable std::mutex m_lock; ///< guards what follows
    QHash<Identity, Place> m_places;
    QSet<QByteArray> m_folders;
};

Identity identityOf(const struct stat &status)
{
    return {status.st_dev, status.st_ino};
}

std::optional<Identity> identityAt(const QByteArray &path)
{
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0)
        return {};
    return identityOf(status);
}

/// The working folder may be another one later.
QByteArray absolutePath(const QByteArray &path)
{
    if (path.startsWith('/'))
        return path;
    const std::unique_ptr<char, decltype(&std::free)> folder(::getcwd(nullptr, 0), &std::free);
    return folder ? QByteArray(folder.get()) + '/' + path : path;
}

QString referenceURL(const Identity &identity)
{
    return referencePrefix + QString::number(identity.device) + u'.'
        + QString::number(identity.inode);
}

std::optional<Identity> identityFromURL(QStringView url)
{
    const QStringView numbers = url.sliced(referencePrefix.size());
    const qsizetype dot = numbers.indexOf(u'.');
    bool isDevice = false;
    bool isInode = false;
    const Identity identity{numbers.first(qMax<qsizetype>(dot, 0)).toULongLong(&isDevice),
                            numbers.sliced(dot + 1).toULongLong(&isInode)};
    return isDevice && isInode ? std::optional(identity) : std::nullopt;
}

/// Whether a folder's entry is the file. Most entries are ruled out without asking for each.
bool isFile(DIR *folder, const dirent &entry, const Identity &identity)
{
    const bool isElsewhere = entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN;
    struct stat status = {};
    return (entry.d_ino == identity.inode || isElsewhere)
        && ::fstatat(::dirfd(folder), entry.d_name, &status, 0) == 0
        && identityOf(status) == identity;
}

struct FolderCloser
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

std::optional<Place> findInFolder(const QByteArray &path, const Identity &identity)
{
    const std::unique_ptr<DIR, FolderCloser> folder(::opendir(path.constData()));
    while (const dirent *entry = folder ? ::readdir(folder.get()) : nullptr)
        if (isFile(folder.get(), *entry, identity))
            return Place{path, entry->d_name};
    return {};
}

std::optional<HRFFileReference> fileWithIdentity(const Identity &identity)
{
    const std::optional<Place> known = Table::shared().place(identity);
    if (!known)
        return {};
    if (identityAt(known->path()) == identity)
        return HRFFileReference::fromNativePath(known->path());
    const std::optional<Place> found = findInFolder(known->folder, identity);
    if (!found)
        return {};
    Table::shared().replace(identity, *known, *found);
    return HRFFileReference::fromNativePath(found->path());
}

} // namespace

std::optional<QString> HRFFileReferenceTable::referenceURLForFile(const HRFFileReference &file)
{
    const std::optional<Identity> identity = identityAt(file.nativePath());
    if (!identity)
        return {};
    Table::shared().insert(*identity, Place::of(absolutePath(file.nativePath())));
    return referenceURL(*identity);
}

std::optional<HRFFileReference> HRFFileReferenceTable::fileForURL(const QString &url)
{
    if (url.startsWith(referencePrefix)) {
        const std::optional<Identity> identity = identityFromURL(url);
        return identity ? fileWithIdentity(*identity) : std::nullopt;
    }
    const QUrl pathURL(url);
    return pathURL.isLocalFile() ? std::optional(HRFFileReference::fromUrl(pathURL)) : std::nullopt;
}

std::optional<QString> HRFFileReferenceTable::lastKnownFolderForURL(const QString &url)
{
    const auto folderOf = [](const Place &place) {
        const bool isRoot = place.folder.size() <= 1;
        return QString::fromUtf8(isRoot ? place.folder : place.folder.chopped(1));
    };
    if (!url.startsWith(referencePrefix)) {
        const auto file = fileForURL(url);
        return file ? std::optional(folderOf(Place::of(file->nativePath()))) : std::nullopt;
    }
    const std::optional<Identity> identity = identityFromURL(url);
    const auto known = identity ? Table::shared().place(*identity) : std::nullopt;
    return known ? std::optional(folderOf(*known)) : std::nullopt;
}

void HRFFileReferenceTable::fileDidMove(const HRFFileReference &from, const HRFFileReference &to)
{
    const std::optional<Identity> identity = identityAt(to.nativePath());
    const std::optional<Place> known = identity ? Table::shared().place(*identity) : std::nullopt;
    if (!known)
        return;
    // A hard link that was moved is not where the file is known to be.
    const bool hasMoved =
        known->path() == absolutePath(from.nativePath()) || identityAt(known->path()) != identity;
    if (hasMoved)
        Table::shared().replace(*identity, *known, Place::of(absolutePath(to.nativePath())));
}
