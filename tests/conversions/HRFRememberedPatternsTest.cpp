#include "conversions/HRFRememberedPatterns.h"

#include "conversions/HRFTestPatterns.h"
#include "kit/HRFUserDefaults.h"

using namespace Qt::StringLiterals;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class HRFRememberedPatternsTest : public HRFApplicationTest
{
protected:
    HRFRememberedPatternsTest()
    {
        HRFUserDefaults::standard().setFilePath(path(u"settings.ini"_s));
    }
    void TearDown() override
    {
        HRFUserDefaults::standard().setFilePath({});
        HRFApplicationTest::TearDown();
    }
};

TEST_F(HRFRememberedPatternsTest, PatternsOutliveTheProgram)
{
    const QString name = u"lirra.rename.pattern"_s;
    for (const QStringList &recents :
         {QStringList{u"%title%, \"%%\" = %year%"_s}, {u"%album%"_s, u"a, b %artist%"_s}, {}}) {
        HRFRememberedPatterns patterns(name);
        patterns.clearRecents();
        for (qsizetype i = recents.size(); i > 0; --i)
            patterns.addRecentPattern(HRFTestElements(recents[i - 1]));
        patterns.setPatternString(u"%artist%/%album%"_s);
        patterns.save();
        HRFUserDefaults::standard().setFilePath({}); // the next start of the program
        HRFUserDefaults::standard().setFilePath(path(u"settings.ini"_s));
        EXPECT_EQ(HRFRememberedPatterns(name).recentPatterns(), recents);
        EXPECT_EQ(HRFRememberedPatterns(name).patternString(), u"%artist%/%album%"_s);
        EXPECT_EQ(HRFRememberedPatterns(name).canClearRecents(), !recents.empty());
        EXPECT_THAT(HRFRememberedPatterns(name + u"2"_s).recentPatterns(), IsEmpty());
    }
}

TEST_F(HRFRememberedPatternsTest, RecentOnesAreFewAndDifferent)
{
    HRFRememberedPatterns patterns;
    for (int i = 1; i <= 11; ++i)
        patterns.addRecentPattern({QString::number(i)});
    EXPECT_THAT(patterns.recentPatterns(), SizeIs(10));
    EXPECT_EQ(patterns.recentPatterns().back(), u"2"_s);
    patterns.addRecentPattern({u" 2 "_s});
    EXPECT_THAT(patterns.recentPatterns(), SizeIs(10));
    EXPECT_EQ(patterns.recentPatterns().front(), u"2"_s);
    patterns.addRecentPattern({});
    patterns.addRecentPattern({u" "_s});
    EXPECT_EQ(patterns.recentPatterns().front(), u"2"_s);
    patterns.setMaximumRecents(0);
    patterns.addRecentPattern({u"3"_s});
    EXPECT_THAT(patterns.recentPatterns(), IsEmpty());
}

TEST_F(HRFRememberedPatternsTest, MaximumIsHeldInBounds)
{
    HRFRememberedPatterns patterns;
    for (const auto &[set, kept] : {std::pair(1000, 254), {254, 254}, {0, 0}, {-1, 10}, {-5, 10}}) {
        patterns.setMaximumRecents(set);
        EXPECT_EQ(patterns.maximumRecents(), kept);
    }
}

} // namespace
