#pragma once

#include "conversions/HRFPattern.h"

/// A piece of text in the display of a pattern, or of what it renders to, and what it comes from.
struct HRFPatternRun
{
    enum class Kind { Literal, Attribute, Dummy };

    QString text{};
    Kind kind = Kind::Literal;

    static Kind kindOf(const HRFPatternItem &item)
    {
        return item.isDummy() ? Kind::Dummy : Kind::Attribute;
    }
    friend bool operator==(const HRFPatternRun &, const HRFPatternRun &) = default;
};

/// The pattern as help texts and previews show it: tokens by their titles, set off by blanks which
/// belong to the token.
std::vector<HRFPatternRun> HRFDisplayRunsForItems(const HRFPatternElements &items);
