#include "kit/HRFFileReference.h"

#include "kit/HRFAssert.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(HRFFileReference, TakesNameAndExtensionFromTheLastComponent)
{
    const std::tuple<const char *, QString, const char *> cases[] = {
        {"a.mp3.txt", u"a.mp3.txt"_s, "txt"},
        {"/x/A.FLAC", u"A.FLAC"_s, "flac"},
        {".mp3", u".mp3"_s, ""},
        {"/x/.mp3", u".mp3"_s, ""},
        {"..mp3", u"..mp3"_s, "mp3"},
        {"dir.x/file", u"file"_s, ""},
        {"a.", u"a."_s, ""},
        {"dir.x/", u"dir.x"_s, "x"},
        {"/", u"/"_s, ""},
        {"", u""_s, ""},
        {"/x/\xFF.mp3", u"\uFFFD.mp3"_s, "mp3"}};
    for (const auto &[path, name, extension] : cases) {
        const auto file = HRFFileReference::fromNativePath(path);
        EXPECT_EQ(file.displayName(), name) << path;
        EXPECT_EQ(file.lowerCaseExtension(), extension) << path;
    }
}

TEST(HRFFileReference, KeepsBytesThatAreNoText)
{
    const auto file = HRFFileReference::fromNativePath("/x/\xE4.mp3");
    EXPECT_FALSE(file.isValidUtf8());
    EXPECT_EQ(file.displayPath(), u"/x/\uFFFD.mp3"_s);
    EXPECT_NE(file, HRFFileReference::fromPath(file.displayPath()));
    EXPECT_TRUE(HRFFileReference::fromPath(file.displayPath()).isValidUtf8());

    const std::pair<QString, const char *> cases[] = {{u"\uFFFD.flac"_s, "/x/\xE4.flac"},
                                                      {u"\uFFFD"_s, "/x/\xE4"},
                                                      {u"ä.mp3"_s, "/x/\xC3\xA4.mp3"},
                                                      {u"a.b.mp3"_s, "/x/a.b.mp3"}};
    for (const auto &[name, path] : cases)
        EXPECT_EQ(file.withDisplayName(name).nativePath(), path);
}

TEST(HRFFileReference, ReadsFileUrls)
{
    const std::pair<const char *, const char *> cases[] = {
        {"file:///x/a%20b%23%3F.mp3", "/x/a b#?.mp3"},
        {"file:///x/%C3%A4%25.mp3", "/x/\xC3\xA4%.mp3"},
        {"file:///x/%E4.mp3", "/x/\xE4.mp3"},
        {"file://localhost/x", "/x"},
        {"file://server/x", "//server/x"}};
    for (const auto &[url, path] : cases)
        EXPECT_EQ(HRFFileReference::fromUrl(QUrl(QString::fromLatin1(url))).nativePath(), path);
    for (const QString &url : {u"http://x/a.mp3"_s, u"/x/a.mp3"_s, QString()})
        EXPECT_THROW(HRFFileReference::fromUrl(QUrl(url)), HRFAssertionFailure);
}
