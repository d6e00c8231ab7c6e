#include "app/HRFRowChange.h"

#include <gtest/gtest.h>

namespace {

using Ranges = std::vector<HRFRowRange>;

/// Records by letter; nobody looks into them.
std::vector<HRFMetaFile *> records(const std::string &letters)
{
    std::vector<HRFMetaFile *> made;
    for (const char letter : letters)
        // NOLINTNEXTLINE(performance-no-int-to-ptr): only told apart, never followed
        made.push_back(reinterpret_cast<HRFMetaFile *>(std::intptr_t(letter) << 4));
    return made;
}

struct Case
{
    std::string from;
    std::string left;
    std::optional<Ranges> expected;
};

TEST(HRFRowChangeTest, tellsRangesThatAreLeftOut)
{
    const Case cases[] = {
        {"abc", "abc", Ranges{}},
        {"abc", "", Ranges{{0, 2}}},
        {"", "", Ranges{}},
        {"abcdef", "bce", Ranges{{0, 0}, {3, 3}, {5, 5}}},
        {"abcdef", "ad", Ranges{{1, 2}, {4, 5}}},
        {"abc", "acb", {}}, // another order
        {"abc", "abcd", {}}, // one more
        {"abcdefgh", "bdfh", {}}, // more ranges than allowed
    };
    for (const Case &test : cases)
        EXPECT_EQ(HRFRowsLeftOut(records(test.from), records(test.left), 3), test.expected)
            << test.from << " -> " << test.left;
}

} // namespace
