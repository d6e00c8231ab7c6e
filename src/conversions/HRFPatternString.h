#pragma once

#include "conversions/HRFPattern.h"

#include <QStringList>

/// The text in which a pattern is typed and stored: a token is its editing string between two
/// percent signs, a percent sign in literal text is doubled.
QString HRFPatternStringForItems(const HRFPatternElements &items);

/// Reads such a text. A token that is none of the offered items disappears.
///
/// When a doubled percent sign comes after the last token, only the text behind the last doubled
/// one is kept of what follows that token: stored patterns are read as they always were.
HRFPatternElements HRFItemsForPatternString(const QString &string,
                                            const std::vector<HRFPatternItem> &offeredItems);

/// The tokens in such a text that are none of the offered items, in their order.
QStringList HRFUnknownTokens(const QString &string,
                             const std::vector<HRFPatternItem> &offeredItems);
