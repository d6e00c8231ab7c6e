#include "operations/HRFFileReference+Locations.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

struct SafeArea
{
    const char *root;
    std::ptrdiff_t depth; ///< how many components below the root a safe location has, at least
};

/// Below /media and /run/media every user has a folder for volumes.
constexpr SafeArea volumeAreas[] = {
    {"/media", 3},
    {"/run/media", 3},
    {"/mnt", 2},
    {"/Volumes", 2},
};
constexpr std::ptrdiff_t safeDepthInHome = 2;

fs::path resolved(const QByteArray &path)
{
    std::error_code failure;
    fs::path place = fs::weakly_canonical(path.toStdString(), failure);
    if (!place.has_filename())
        place = place.parent_path();
    return failure ? fs::path() : place;
}

/// How many components a path goes on for below a folder; -1 when it is not below it.
std::ptrdiff_t depthBelow(const fs::path &folder, const fs::path &path)
{
    const auto [rest, next] = std::ranges::mismatch(folder, path);
    return rest == folder.end() ? std::distance(next, path.end()) : -1;
}

bool isDropbox(const fs::path &path)
{
    return qstricmp(path.filename().c_str(), "dropbox") == 0;
}

} // namespace

HRFFileReference parentURL(const HRFFileReference &file)
{
    const QByteArray &path = file.nativePath();
    const qsizetype slash = path.lastIndexOf('/');
    if (slash < 0)
        return HRFFileReference::fromNativePath(".");
    return HRFFileReference::fromNativePath(path.first(std::max<qsizetype>(slash, 1)));
}

HRFFileReference numberedURL(const HRFFileReference &file, int number)
{
    const QByteArray &path = file.nativePath();
    const qsizetype name = path.lastIndexOf('/') + 1;
    const qsizetype dot = path.lastIndexOf('.');
    const qsizetype baseEnd = dot > name ? dot : path.size();
    return HRFFileReference::fromNativePath(path.first(baseEnd) + ' ' + QByteArray::number(number)
                                            + '.'
                                            + path.sliced(std::min(baseEnd + 1, path.size())));
}

/// Paths that are not UTF-8 must not look the same because of what is shown for their bytes.
bool differInCaseAtMost(const HRFFileReference &one, const HRFFileReference &other)
{
    const bool isText = one.isValidUtf8() && other.isValidUtf8();
    return isText ? one.displayPath().compare(other.displayPath(), Qt::CaseInsensitive) == 0
                  : one.nativePath().compare(other.nativePath(), Qt::CaseInsensitive) == 0;
}

HRFFileReference firstExistingAncestorURL(const HRFFileReference &file)
{
    HRFFileReference place = file;
    struct stat status{};
    while (place.nativePath().size() > 1
           && (::stat(place.nativePath().constData(), &status) != 0 || !S_ISDIR(status.st_mode)))
        place = parentURL(place);
    return place;
}

bool isSafeURL(const HRFFileReference &folder)
{
    const fs::path path = resolved(folder.nativePath());
    const fs::path home = resolved(QFile::encodeName(QDir::homePath()));
    if (isDropbox(path) || depthBelow(path, home) >= 0)
        return false;
    if (const auto depth = depthBelow(home, path); depth >= 0)
        return depth >= safeDepthInHome;
    return std::ranges::any_of(volumeAreas, [&path](const SafeArea &area) {
        return depthBelow(area.root, path) >= area.depth;
    });
}
