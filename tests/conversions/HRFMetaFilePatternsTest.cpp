#include "conversions/HRFContainedSubPath.h"
#include "conversions/HRFDotPrefixCheck.h"
#include "conversions/HRFMetaFile+Patterns.h"
#include "conversions/HRFString+FileNames.h"
#include "conversions/HRFTestPatterns.h"
#include "kit/HRFUserDefaults.h"
#include "store/HRFSystemFile.h"
#include "support/HRFScriptedInteraction.h"

#include <thread>

using namespace Qt::StringLiterals;
using testing::SizeIs;

namespace {

class HRFMetaFilePatternsTest : public HRFRecordTest
{
};

HRFConversionContext plainContext()
{
    HRFConversionContext context;
    context.usesNumericPadding = false;
    context.isNTFSFriendly = false;
    context.isSMBFriendly = false;
    context.fallbackAction = 2;
    return context;
}

HRFConversionContext with(bool HRFConversionContext::*field)
{
    HRFConversionContext context = plainContext();
    context.*field = true;
    return context;
}

HRFConversionContext fallingBack(qlonglong action)
{
    HRFConversionContext context = plainContext();
    context.fallbackAction = action;
    return context;
}

const QString nothing = u"nothing"_s;

TEST_F(HRFMetaFilePatternsTest, RendersAsTheContextSays)
{
    const auto plain = plainContext();
    const auto padding = with(&HRFConversionContext::usesNumericPadding);
    const auto NTFS = with(&HRFConversionContext::isNTFSFriendly);
    const auto SMB = with(&HRFConversionContext::isSMBFriendly);
    const struct
    {
        HRFTestValues values;
        QString pattern;
        HRFConversionContext context;
        QString string;
        QString path{}, fileName{}; ///< as the string where they are not given
    } rows[] = {
        {{{"tags.trackNumber", 7}, {"tags.trackTotal", 9}}, u"%trackNumber%"_s, padding, u"07"_s},
        {{{"tags.trackNumber", 7}, {"tags.trackTotal", 150}},
         u"%trackNumber%"_s,
         padding,
         u"007"_s},
        {{{"tags.trackNumber", 123}}, u"%trackNumber%"_s, padding, u"123"_s},
        {{{"tags.trackTotal", 5}}, u"%trackTotal%"_s, padding, u"05"_s},
        {{{"tags.discNumber", 1}}, u"%discNumber%"_s, padding, u"01"_s},
        {{{"tags.trackNumber", 7}, {"tags.trackTotal", 9}}, u"%trackNumber%"_s, plain, u"7"_s},
        {{{"tags.year", 5}}, u"%year%"_s, padding, u"5"_s},
        {{{"properties.duration", 185}}, u"%duration%"_s, plain, u"3:05"_s},
        {{{"properties.duration", 185}}, u"%duration%"_s, NTFS, u"305"_s},
        {{{"tags.isPodcast", true}}, u"%isPodcast%"_s, plain, u"1"_s},
        {{{"tags.artist", u"AC/DC"_s}}, u"%artist%"_s, plain, u"AC:DC"_s},
        {{{"tags.artist", u"AC/DC"_s}}, u"%artist%"_s, NTFS, u"ACDC"_s},
        {{{"fileInfo.fileName", u"AC:DC.mp3"_s}}, u"%fileName%"_s, plain, u"AC:DC.mp3"_s},
        {{{"tags.artist", u"a<b>c\"|?*\\"_s}}, u"%artist%"_s, NTFS, u"abc"_s},
        {{{"tags.title", u"Song [Live]; Part 1"_s}}, u"%title%"_s, SMB, u"Song Live Part 1"_s},
        {{{"tags.title", u"a\tb\r\nc\u2028d  e\u0085\u001b"_s + QChar(0)}},
         u"%title%"_s,
         plain,
         u"abcd  e"_s},
        {{{"tags.title", u"  "_s}}, u"%title%"_s, plain, u"  "_s, u"  "_s, u""_s},
        {{{"tags.title", u"T"_s}}, u" %title%/x"_s, plain, u" T/x"_s, u" T/x"_s, u"T:x"_s},
        {{{"tags.title", u"T"_s}}, u"?/%title%"_s, NTFS, u"T"_s, u"/T"_s, u"T"_s},
        {{}, u"x %album%"_s, fallingBack(0), u"x Unknown Album"_s},
        {{}, u"%(.+)%"_s, fallingBack(0), u"Unknown Wildcard"_s},
        {{}, u"x %album%"_s, fallingBack(1), u"x "_s, u"x "_s, u"x"_s},
        {{}, u"x %album%"_s, fallingBack(2), nothing},
        {{}, u"x %album%"_s, fallingBack(-1), nothing},
        {{}, u""_s, plain, u""_s},
    };
    for (const auto &row : rows) {
        const HRFMetaFile &file = record(row.values);
        const HRFPattern pattern(HRFTestElements(row.pattern), row.context);
        const auto orString = [&](const QString &text) {
            return text.isNull() ? row.string : text;
        };
        EXPECT_EQ(HRFStringForPattern(file, pattern).value_or(nothing), row.string)
            << row.pattern.toStdString();
        EXPECT_EQ(HRFPathForPattern(file, pattern).value_or(nothing), orString(row.path));
        EXPECT_EQ(HRFFileNameForPattern(file, pattern).value_or(nothing), orString(row.fileName));
        QString preview;
        const auto runs = HRFRunsForPattern(file, pattern);
        for (const HRFPatternRun &run : runs.value_or(std::vector<HRFPatternRun>{{nothing}}))
            preview += run.text;
        EXPECT_EQ(preview, row.string);
    }
}

/// A title that names a field may hold what names may not: it is taken as it is.
TEST_F(HRFMetaFilePatternsTest, UnknownTextIsNotSanitised)
{
    HRFConversionContext choices = with(&HRFConversionContext::isNTFSFriendly);
    choices.fallbackAction = HRFConversionContext::fallbackUnknown;
    const auto item = HRFPatternItem::itemWithTitle(u"Key/Mode?"_s, {}, u"x"_s, {});
    EXPECT_EQ(HRFStringForPattern(record({}), HRFPattern({item}, choices)), u"Unknown Key/Mode?"_s);
}

TEST_F(HRFMetaFilePatternsTest, ASnapshotOutlivesItsRecord)
{
    HRFMetaFile &file = record({{"tags.title", u"Before"_s}});
    file.setFileURL(u"file:///a/b/Song.mp3"_s);
    const HRFRecordValues values = HRFRecordValues::snapshotOf(file);
    HRFKeyPath::find(u"tags.title"_s)->setValue(u"After"_s, file);
    context.deleteObject(file);
    context.processPendingChanges();
    const HRFPattern pattern(HRFTestElements(u"%title% %fileName% %filePath%"_s), plainContext());
    std::optional<QString> text;
    std::thread([&] { text = HRFStringForPattern(values, pattern); }).join();
    EXPECT_EQ(text, u"Before Song.mp3 :a:b"_s);
}

TEST_F(HRFMetaFilePatternsTest, ConversionSourceIsPlain)
{
    const QDateTime date(QDate(2004, 5, 6), QTime(7, 8, 9), Qt::UTC);
    HRFMetaFile &file = record({{"tags.year", 2004}, {"tags.releaseTime", date}});
    const struct
    {
        QString url, keyPath, source;
    } rows[] = {
        {u"file:///a/b.c/Song.1.mp3"_s, u"fileInfo.fileName"_s, u"Song.1"_s},
        {u"file:///a/b.c/Song.1.mp3"_s, u"fileInfo.filePath"_s, u"/a/b.c/Song.1"_s},
        {u"file:///a/b.c/Song"_s, u"fileInfo.filePath"_s, u"/a/b.c/Song"_s},
        {u"file:///.mp3"_s, u"fileInfo.filePath"_s, u"/.mp3"_s},
        {u"file:///x"_s, u"tags.year"_s, u"2004"_s},
        {u"file:///x"_s, u"tags.releaseTime"_s, u"2004-05-06T07:08:09Z"_s},
        {u"file:///x"_s, u"tags.album"_s, nothing},
    };
    for (const auto &row : rows) {
        file.setFileURL(row.url);
        EXPECT_EQ(
            HRFConversionStringForAttribute(file, HRFTestAttribute(row.keyPath)).value_or(nothing),
            row.source);
    }
}

TEST(HRFConversionContextTest, EachSettingIsAChoice)
{
    HRFUserDefaults &defaults = HRFUserDefaults::standard();
    const HRFConversionContext before;
    for (const QString &key : defaults.defaultKeys().filter(u"lirra.formatter."_s)) {
        const qlonglong other = defaults.integerForKey(key) == 0 ? 1 : 0;
        defaults.setOverride(other, key);
        const bool isForTheMoveView = key.endsWith(u"copyFiles"_s);
        EXPECT_EQ(HRFConversionContext() == before, isForTheMoveView) << key.toStdString();
        defaults.setOverride({}, key);
    }
    EXPECT_EQ(HRFConversionContext(), before);
}

TEST(HRFDotPrefixCheckTest, TheAnswerDecidesAndIsRemembered)
{
    const struct
    {
        HRFAnswerRole answer;
        int code;
        bool proceeds;
        QString path, next;
    } rows[] = {
        {HRFAnswerRole::Fix, 1000, true, u"hidden/x/file"_s, u"/M/a"_s},
        {HRFAnswerRole::Cancel, 1001, false, u".hidden/../.x/file"_s, u"/M/./..a/..."_s},
        {HRFAnswerRole::Continue, 1002, true, u".hidden/../.x/file"_s, u"/M/./..a/..."_s},
    };
    for (const auto &row : rows) {
        HRFScriptedInteraction user;
        user.answers = {{row.answer}};
        int response = HRFDotPrefixCheck::noAnswer;
        QString path = u".hidden/../.x/file"_s;
        QString next = u"/M/./..a/..."_s;
        EXPECT_EQ(HRFDotPrefixCheck::shouldProceed(path, response, u"Rename"_s), row.proceeds);
        EXPECT_EQ(HRFDotPrefixCheck::shouldProceed(next, response, u"Rename"_s), row.proceeds);
        EXPECT_EQ(path, row.path);
        EXPECT_EQ(next, row.next);
        EXPECT_EQ(response, row.code);
        ASSERT_THAT(user.alerts, SizeIs(1));
        EXPECT_EQ(user.alerts[0].title, u"Rename"_s);
    }
}

TEST(HRFDotPrefixCheckTest, DoesNotAskForOrdinaryNames)
{
    const HRFScriptedInteraction user;
    int response = HRFDotPrefixCheck::noAnswer;
    for (QString path : {u"a.b/c."_s, u"./../a"_s, u"/a//b"_s, u""_s})
        EXPECT_TRUE(HRFDotPrefixCheck::shouldProceed(path, response, {})) << path.toStdString();
    EXPECT_EQ(response, HRFDotPrefixCheck::noAnswer);
}

TEST(HRFContainedSubPathTest, StaysBelowTheBase)
{
    const QString longName = QString(254, u'a');
    const std::pair<QString, std::optional<QString>> rows[] = {
        {u"A/B"_s, u"A/B"_s},      {u"/etc//x/"_s, u"etc/x"_s},
        {u"."_s, u""_s},           {u"A/../B/./C"_s, u"B/C"_s},
        {u"A/.."_s, u""_s},        {u".."_s, {}},
        {u"A/../../B"_s, {}},      {u"/../etc"_s, {}},
        {u"..."_s, u"..."_s},      {longName + u'b', longName + u'b'},
        {longName + u'é', {}}, // 256 bytes
        {u"A/B"_s + QChar(0), {}},
    };
    for (const auto &[path, contained] : rows) {
        const auto result = HRFContainedSubPath(path);
        EXPECT_EQ(result ? std::optional(*result) : std::nullopt, contained) << path.toStdString();
        EXPECT_TRUE(result || !result.error().description.isEmpty());
    }
    EXPECT_FALSE(HRFCheckFileName(u"a/b"_s));
    EXPECT_FALSE(HRFCheckFileName(u".."_s));
}

} // namespace
