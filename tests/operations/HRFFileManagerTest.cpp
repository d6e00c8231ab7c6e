#include "operations/HRFFileManager.h"

#include "kit/HRFFileReferenceTable.h"
#include "operations/HRFExclusiveRename.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Recovery = HRFFileExistsRecovery;

namespace {

class HRFFileManagerTest : public testing::Test
{
protected:
    void TearDown() override
    {
        // QTemporaryDir leaves names that are not UTF-8.
        for (const auto &entry : std::filesystem::directory_iterator(folder.path().toStdString()))
            std::filesystem::remove_all(entry);
    }
    HRFFileReference file(const QByteArray &name) const
    {
        return HRFFileReference::fromNativePath(QFile::encodeName(folder.path()) + '/' + name);
    }
    /// A file that contains its name.
    HRFFileReference make(const QByteArray &name) const
    {
        std::unique_ptr<FILE, decltype(&fclose)> made(
            fopen(file(name).nativePath().constData(), "w"), &fclose);
        EXPECT_TRUE(made && fputs(name.constData(), made.get()) >= 0) << name.constData();
        return file(name);
    }
    /// The contents of a file; "-" for none.
    QByteArray contents(const QByteArray &name) const
    {
        QByteArray bytes(100, '\0');
        std::unique_ptr<FILE, decltype(&fclose)> read(
            fopen(file(name).nativePath().constData(), "r"), &fclose);
        return read ? bytes.first(qsizetype(fread(bytes.data(), 1, 100, read.get()))) : "-";
    }
    HRFResult<HRFFileReference> move(const HRFFileReference &from, const QByteArray &to,
                                     Recovery recovery = Recovery::Stop) const
    {
        HRFFileManager manager;
        manager.setFileExistsRecovery(recovery);
        return manager.moveItemAtURL(from, file(to));
    }

    QTemporaryDir folder;
};

TEST_F(HRFFileManagerTest, WhatIsInTheWayIsTreatedAsTold)
{
    struct Case
    {
        Recovery recovery;
        QByteArray destination;
        QByteArray result; ///< empty for a failure
    };
    const Case cases[] = {
        {Recovery::Stop, "free.mp3", "free.mp3"},
        {Recovery::Stop, "a.mp3", ""},
        {Recovery::Skip, "a.mp3", ""},
        {Recovery::KeepBoth, "a.mp3", "a 3.mp3"},
        {Recovery::KeepBoth, "song", "song 2."},
        {Recovery::KeepBoth, ".hidden", ".hidden 2."},
        {Recovery::KeepBoth, "b\xff.x.mp3", "b\xff.x 2.mp3"},
        {Recovery::Replace, "a 2.mp3", "a 2.mp3"},
    };
    for (const QByteArray name : {"a.mp3", "a 2.mp3", "song", ".hidden", "b\xff.x.mp3"})
        make(name);
    for (const Case &test : cases) {
        const HRFFileReference source = make("source.flac");
        const QString reference = *HRFFileReferenceTable::referenceURLForFile(source);
        const auto result = move(source, test.destination, test.recovery);
        if (test.result.isEmpty()) {
            ASSERT_FALSE(result) << test.destination.constData();
            EXPECT_EQ(result.error().code, HRFFileErrorCode::writeFileExists);
            EXPECT_TRUE(result.error().fullText().contains(u"“a.mp3” already exists"_s));
            EXPECT_EQ(contents(test.destination), test.destination);
            continue;
        }
        ASSERT_TRUE(result) << test.destination.constData();
        EXPECT_EQ(*result, file(test.result)) << test.result.constData();
        EXPECT_EQ(contents(test.result), "source.flac");
        EXPECT_EQ(contents("source.flac"), "-");
        EXPECT_EQ(HRFFileReferenceTable::fileForURL(reference), *result);
    }
}

TEST_F(HRFFileManagerTest, FailuresNameTheFileAndLeaveIt)
{
    struct Case
    {
        QByteArray destination;
        const char *domain;
        int code;
        const char *reason;
    };
    const Case cases[] = {
        {"missing/a.mp3", HRFFileErrorDomain, HRFFileErrorCode::noSuchFile, "No such file"},
        {QByteArray(256, 'n'), HRFPOSIXErrorDomain, ENAMETOOLONG, "too long"},
        {"source.mp3/a.mp3", HRFPOSIXErrorDomain, ENOTDIR, "Not a directory"},
    };
    const HRFFileReference source = make("source.mp3");
    for (const Case &test : cases) {
        const auto result = move(source, test.destination, Recovery::KeepBoth);
        ASSERT_FALSE(result) << test.reason;
        EXPECT_EQ(result.error().domain, QString::fromLatin1(test.domain)) << test.reason;
        EXPECT_EQ(result.error().code, test.code) << test.reason;
        const QString text = result.error().fullText();
        EXPECT_TRUE(text.contains(u"“source.mp3”"_s)) << test.reason;
        EXPECT_TRUE(text.contains(QString::fromLatin1(test.reason))) << text.toStdString();
        EXPECT_EQ(contents("source.mp3"), "source.mp3");
    }
}

/// As on a file system that does not tell case apart: both names lead to the file.
TEST_F(HRFFileManagerTest, AFileIsNotInTheWayOfItself)
{
    const HRFFileReference source = make("song.mp3");
    ASSERT_EQ(::link(source.nativePath().constData(), file("Song.mp3").nativePath().constData()),
              0);
    EXPECT_EQ(move(source, "Song.mp3", Recovery::KeepBoth), file("Song.mp3"));
    EXPECT_EQ(contents("Song 2.mp3"), "-");
}

TEST_F(HRFFileManagerTest, RenamingInStepsOverwritesNothingEither)
{
    for (const auto rename : {HRFExclusiveRename, HRFExclusiveRenameInSteps}) {
        const QByteArray one = make("one").nativePath();
        const QByteArray two = make("two").nativePath();
        EXPECT_EQ(rename(one, two), EEXIST);
        EXPECT_EQ(contents("two"), "two");
        EXPECT_EQ(rename(file("none").nativePath(), file("new").nativePath()), ENOENT);
        EXPECT_EQ(rename(one, file("three").nativePath()), 0);
        EXPECT_EQ(contents("three"), "one");
        EXPECT_EQ(contents("one"), "-");
        ASSERT_TRUE(QDir(folder.path()).mkdir(u"folder"_s)); // which cannot be linked
        EXPECT_EQ(rename(file("folder").nativePath(), two), EEXIST);
        EXPECT_EQ(rename(file("folder").nativePath(), file("moved").nativePath()), 0);
        ASSERT_TRUE(QDir(folder.path()).rmdir(u"moved"_s));
        ASSERT_EQ(::unlink(file("three").nativePath().constData()), 0);
    }
}

} // namespace
