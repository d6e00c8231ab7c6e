#include "HRFTestTrees.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr uid_t nobody = 65534;

std::string bytesOf(const fs::path &file)
{
    if (fs::is_symlink(file))
        return fs::read_symlink(file).string();
    if (!fs::is_regular_file(file))
        return {};
    std::string bytes(fs::file_size(file), '\0');
    std::ifstream(file, std::ios::binary).read(bytes.data(), std::streamsize(bytes.size()));
    return bytes;
}

HRFItemFacts factsOf(const fs::path &item)
{
    struct stat status{};
    EXPECT_EQ(::lstat(item.c_str(), &status), 0) << item;
    std::array<char, 100> value{};
    const ssize_t size = ::lgetxattr(item.c_str(), HRFTestAttribute, value.data(), value.size());
    return {status.st_mode,
            status.st_uid,
            status.st_gid,
            status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec,
            bytesOf(item),
            std::string(value.data(), std::size_t(std::max<ssize_t>(size, 0)))};
}

} // namespace

HRFTree HRFTreeAt(const QByteArray &folder)
{
    HRFTree tree;
    const fs::path root(folder.toStdString());
    for (const auto &entry : fs::recursive_directory_iterator(root))
        tree.emplace(entry.path().lexically_relative(root).string(), factsOf(entry.path()));
    return tree;
}

std::vector<std::string> HRFNamesIn(const QByteArray &folder)
{
    std::vector<std::string> names;
    for (const auto &entry : fs::directory_iterator(folder.toStdString()))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

HRFTestFolder::HRFTestFolder(const QString &place)
    : m_folder(place.isEmpty() ? QTemporaryDir() : QTemporaryDir(place))
{
}

HRFTestFolder::~HRFTestFolder()
{
    // QTemporaryDir leaves names that are not UTF-8.
    std::error_code failure;
    for (const auto &entry : fs::directory_iterator(path().toStdString(), failure))
        fs::remove_all(entry, failure);
}

QByteArray HRFTestFolder::path(const QByteArray &name) const
{
    const QByteArray folder = m_folder.path().toUtf8();
    return name.isEmpty() ? folder : folder + '/' + name;
}

HRFFileReference HRFTestFolder::file(const QByteArray &name) const
{
    return HRFFileReference::fromNativePath(path(name));
}

HRFFileReference HRFTestFolder::make(const QByteArray &name, const QByteArray &contents) const
{
    const fs::path file(path(name).toStdString());
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    stream << (contents.isEmpty() ? name : contents).toStdString();
    EXPECT_TRUE(stream.flush()) << file;
    return this->file(name);
}

QByteArray HRFTestFolder::contents(const QByteArray &name) const
{
    return QByteArray::fromStdString(bytesOf(path(name).toStdString()));
}

bool HRFTestFolder::isOnSameFileSystem(const HRFTestFolder &other) const
{
    struct stat one{};
    struct stat two{};
    return ::stat(path().constData(), &one) != 0 || ::stat(other.path().constData(), &two) != 0
        || one.st_dev == two.st_dev;
}

HRFFullDisk::HRFFullDisk()
{
    struct rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    m_limit = limit.rlim_cur;
    ::signal(SIGXFSZ, SIG_IGN);
    limit.rlim_cur = 1000;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

HRFFullDisk::~HRFFullDisk()
{
    struct rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = m_limit;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

HRFUserRights::HRFUserRights()
{
    EXPECT_TRUE(::getuid() != 0 || ::seteuid(nobody) == 0);
}

HRFUserRights::~HRFUserRights()
{
    EXPECT_EQ(::seteuid(::getuid()), 0);
}
