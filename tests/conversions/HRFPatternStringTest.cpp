#include "conversions/HRFPatternRun.h"
#include "conversions/HRFTestPatterns.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

/// Elements in a form that can be compared at a glance: "<title>| - |<artist>".
QString outline(const HRFPatternElements &elements)
{
    QStringList parts;
    for (const HRFPatternElement &element : elements) {
        if (const auto *literal = std::get_if<QString>(&element))
            parts.append(*literal);
        else
            parts.append(u'<' + std::get<HRFPatternItem>(element).editingString() + u'>');
    }
    return parts.join(u'|');
}

TEST(HRFPatternStringTest, ReadsWhatIsTyped)
{
    const struct
    {
        QString string;
        QString outline;
    } rows[] = {
        {u""_s, u""_s},
        {u"%artist% - %title%"_s, u"<artist>| - |<title>"_s},
        {u"100%% %title%"_s, u"100% |<title>"_s},
        {u"%%x%title%"_s, u"%x|<title>"_s},
        {u"a%Nonexistent%b"_s, u"a|b"_s},
        {u"%Nonexistent%"_s, u""_s},
        {u"%title%%artist%"_s, u"<title>|<artist>"_s},
        {u"%title%%%%artist%"_s, u"<title>|%|<artist>"_s},
        // What stands around doubled percent signs after the last token is lost.
        {u"abc%%def"_s, u"def"_s},
        {u"abc%%"_s, u""_s},
        {u"%title%abc%%def"_s, u"<title>|def"_s},
        {u"%title%%"_s, u"<title>|%"_s},
        {u"50%"_s, u"50%"_s},
        // A token does not go on in the next line.
        {u"1%\n%title%"_s, u"1%\n|<title>"_s},
        {u"%(.+)%-%(\\d+)%"_s, u"<(.+)>|-|<(\\d+)>"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(outline(HRFTestElements(row.string)), row.outline) << row.string.toStdString();
}

TEST(HRFPatternStringTest, WritesTokensAndDoublesPercentSigns)
{
    EXPECT_EQ(HRFPatternStringForItems({}), QString());
    HRFPatternElements elements = HRFTestElements(u"%title%"_s);
    elements.insert(elements.begin(), u"50% of "_s);
    elements.emplace_back(HRFPatternItem::itemWithTitle(u"Nameless"_s, {}, {}, {}));
    EXPECT_EQ(HRFPatternStringForItems(elements), u"50%% of %title%"_s);
}

/// A pattern that ends with a token, and whose literals are apart, comes back as it was.
TEST(HRFPatternStringTest, RandomPatternsComeBack)
{
    std::mt19937 generator(20);
    const auto below = [&](std::size_t end) { return std::size_t(generator()) % end; };
    const HRFPatternElements items = HRFTestElements(u"%title%%year%%(.)%%(\\s+)%"_s);
    const QString letters = u"a%/\\ .é\n😀-"_s;
    for (int round = 0; round < 500; ++round) {
        HRFPatternElements elements;
        for (std::size_t tokens = below(5); tokens > 0; --tokens) {
            QString literal;
            for (std::size_t count = below(6); count > 0; --count)
                literal += letters[qsizetype(below(std::size_t(letters.size())))];
            if (!literal.isEmpty())
                elements.emplace_back(literal);
            elements.push_back(items[below(items.size())]);
        }
        const QString string = HRFPatternStringForItems(elements);
        EXPECT_EQ(HRFTestElements(string), elements) << string.toStdString();
    }
}

TEST(HRFPatternStringTest, DisplaySetsTokensOff)
{
    using Kind = HRFPatternRun::Kind;
    const std::vector<HRFPatternRun> expected{{u"Title "_s, Kind::Attribute},
                                              {u"-"_s, Kind::Literal},
                                              {u" ＊ "_s, Kind::Dummy},
                                              {u" Track"_s, Kind::Attribute}};
    EXPECT_EQ(HRFDisplayRunsForItems(HRFTestElements(u"%title%-%(.+)%%trackNumber%"_s)), expected);
    const std::vector<HRFPatternRun> alone{{u"Any"_s, Kind::Dummy}};
    EXPECT_EQ(HRFDisplayRunsForItems(HRFTestElements(u"%(.)%"_s)), alone);
}

} // namespace
