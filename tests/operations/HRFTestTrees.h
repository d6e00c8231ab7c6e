#pragma once

#include "kit/HRFFileReference.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <tuple>
#include <vector>

/// What must not change about an item: kind and mode, owner, group, modification time, contents
/// (those of a link are its target), and an extended attribute.
using HRFItemFacts =
    std::tuple<unsigned, unsigned, unsigned, qint64, qint64, std::string, std::string>;
/// By path below the root of the tree.
using HRFTree = std::map<std::string, HRFItemFacts>;

inline constexpr const char *HRFTestAttribute = "user.lirra.test";

/// All that is in a folder.
HRFTree HRFTreeAt(const QByteArray &folder);
/// The names of the items in a folder, in order.
std::vector<std::string> HRFNamesIn(const QByteArray &folder);

/// An empty folder, removed whatever is in it.
class HRFTestFolder
{
public:
    explicit HRFTestFolder(const QString &place = QString());
    HRFTestFolder(const HRFTestFolder &) = delete;
    HRFTestFolder &operator=(const HRFTestFolder &) = delete;
    ~HRFTestFolder();

    /// The path of an item in it; of the folder itself without a name.
    QByteArray path(const QByteArray &name = {}) const;
    HRFFileReference file(const QByteArray &name) const;
    /// Writes a file; its contents are its name unless given.
    HRFFileReference make(const QByteArray &name, const QByteArray &contents = {}) const;
    QByteArray contents(const QByteArray &name) const;
    bool isOnSameFileSystem(const HRFTestFolder &other) const;

private:
    QTemporaryDir m_folder;
};

/// Two folders, on different file systems where the machine has such.
class HRFTwoFoldersTest : public testing::Test
{
protected:
    /// To be skipped when there is one file system only.
    bool hasTwoFileSystems() const { return !here.isOnSameFileSystem(there); }

    HRFTestFolder here;
    HRFTestFolder there{QStringLiteral("/dev/shm/lirra-test-XXXXXX")};
};

/// While it lives, files cannot grow: the disk is full.
class HRFFullDisk
{
public:
    HRFFullDisk();
    HRFFullDisk(const HRFFullDisk &) = delete;
    HRFFullDisk &operator=(const HRFFullDisk &) = delete;
    ~HRFFullDisk();

private:
    unsigned long m_limit = 0;
};

/// While it lives, a process of the administrator has the rights of a user only.
class HRFUserRights
{
public:
    HRFUserRights();
    HRFUserRights(const HRFUserRights &) = delete;
    HRFUserRights &operator=(const HRFUserRights &) = delete;
    ~HRFUserRights();
};
