#include "conversions/HRFPatternMatcher.h"

#include "conversions/HRFTestPatterns.h"

#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// What a pattern reads out of a text: "title=Intro, trackNumber=7".
QString matched(const QString &pattern, const QString &source,
                HRFRegexMode mode = HRFRegexMode::Off)
{
    const auto matcher = HRFPatternMatcher::matcherForPatternItems(HRFTestElements(pattern), mode);
    if (!matcher)
        return matcher.error().description;
    const auto matches = matcher->matchesInString(source);
    if (!matches)
        return matches.error().description;
    QStringList parts;
    for (const HRFMetaCaptureMatch &match : *matches) {
        EXPECT_EQ(match.value.typeId() == QMetaType::LongLong,
                  match.patternItem.representsNumericValue());
        parts.append(match.patternItem.editingString() + u'=' + match.value.toString());
    }
    return parts.join(u", "_s);
}

TEST(HRFPatternMatcherTest, ReadsValues)
{
    constexpr auto off = HRFRegexMode::Off;
    constexpr auto on = HRFRegexMode::On;
    const QString invalid = u"Regular Expression is invalid"_s;
    const struct
    {
        QString pattern, source;
        HRFRegexMode mode;
        QString matched;
    } rows[] = {
        {u"%trackNumber% - %title%"_s, u"07 - Intro"_s, off, u"trackNumber=7, title=Intro"_s},
        {u"%trackNumber% - %title%"_s, u"x07 -  Intro "_s, off, u"trackNumber=7, title=Intro"_s},
        {u"%trackNumber% - %title%"_s, u"Intro"_s, off, u""_s},
        {u"%trackNumber%"_s, u"٣٤"_s, off, u"trackNumber=34"_s},
        {u"%year%"_s, u"99999999999999999999"_s, off, u"year=9223372036854775807"_s},
        {u"%artist%/%album%"_s, u"Artist:Name/Album"_s, off, u"artist=Artist:Name, album=Album"_s},
        {u"%artist%/%album%"_s, u"Artist:Album"_s, off, u"artist=Artist, album=Album"_s},
        {u"%artist%\\/%album%"_s, u"A\\:B"_s, off, u"artist=A, album=B"_s},
        {u"*+?[](){}^$|\\.#-%title%"_s, u"*+?[](){}^$|\\.#-x"_s, off, u"title=x"_s},
        {u"a.c%title%"_s, u"abcx"_s, off, u""_s},
        {u"é%title%"_s, u"e\u0301x"_s, off, u"title=x"_s},
        // Matching-only items consume text.
        {u"%(\\d+)%%(\\s+)%%title%"_s, u"12 x"_s, off, u"title=x"_s},
        {u"%(.+)%"_s, u"x"_s, off, u""_s},
        // Every match counts.
        {u"<%year%>"_s, u"<1> <2>"_s, off, u"year=1, year=2"_s},
        {u"(\\d{4}) %title%"_s, u"1999 x"_s, on, u"title=x"_s},
        {u"(a)((b)|c)%title%(d)%artist%"_s, u"acTdA"_s, on, u"title=T, artist=A"_s},
        {u"\\/%title%"_s, u":x"_s, on, u"title=x"_s},
        {u"/%title%"_s, u":x"_s, on, u""_s},
        {u"(?:%title%)?"_s, u""_s, on, u""_s},
        {u"x(?:%year%)?"_s, u"x"_s, on, u""_s}, // a group that took no part
        // A group that spans elements is none of either: the items move up.
        {u"(%title%-%artist%)"_s, u"T-A"_s, on, u"title=T-A, artist=T"_s},
        // So a numeric item can get a text without digits.
        {u"(x %year%)%year%"_s, u"x 1 2"_s, on, u"year=0, year=1"_s},
        {u"[%title%"_s, u"x"_s, on, invalid},
        {u"(%title%"_s, u"x"_s, on, invalid},
        {u"(%title%"_s, u"(x"_s, off, u"title=x"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(matched(row.pattern, row.source, row.mode), row.matched)
            << row.pattern.toStdString();
}

TEST(HRFPatternMatcherTest, RefusesToMatchForEver)
{
    const QString tooLong = u"Matching the pattern takes too long"_s;
    const QString source = QString(40, u'a') + u'b';
    EXPECT_EQ(matched(u"(a+)+$%title%"_s, source, HRFRegexMode::On), tooLong);
    EXPECT_EQ(matched(u"(a|aa)*$%title%"_s, QString(100'000, u'a') + u'b', HRFRegexMode::On),
              tooLong);
    // Nothing is tried twice here, but all of a long text is looked at from each of its characters,
    // by one find that fails or by many that do not.
    for (const QString &pattern : {u"[^x]*+x"_s, u"a(?=[^x]*+)"_s})
        EXPECT_EQ(matched(pattern, QString(500'000, u'a'), HRFRegexMode::On), tooLong);
    // Without mode the user can only repeat items; it is polynomial, but a lyric is long.
    EXPECT_EQ(matched(u"%title%%artist%%album%%comment%!"_s, QString(20'000, u'a')), tooLong);
}

TEST(HRFPatternMatcherTest, MayBeSharedByThreads)
{
    const auto matcher = HRFPatternMatcher::matcherForPatternItems(
        HRFTestElements(u"%trackNumber% - %title%"_s), HRFRegexMode::Off);
    ASSERT_TRUE(matcher);
    std::vector<std::jthread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&matcher, i] {
            for (int round = 0; round < 200; ++round) {
                const auto matches = matcher->matchesInString(u"%1 - x"_s.arg(i));
                ASSERT_TRUE(matches && matches->size() == 2);
                EXPECT_EQ(matches->front().value, i);
            }
        });
    }
}

} // namespace
