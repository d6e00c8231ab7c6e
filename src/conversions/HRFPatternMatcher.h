#pragma once

#include "conversions/HRFMetaCaptureGroup.h"
#include "conversions/HRFMetaCaptureMatch.h"
#include "conversions/HRFPattern.h"
#include "kit/HRFError.h"

#include <unicode/regex.h>

#include <memory>
#include <optional>
#include <vector>

/// Errors of regular expressions; the code is ICU's UErrorCode.
inline constexpr const char *HRFRegularExpressionErrorDomain = "ICU";

/// Whether the literal text of a pattern is itself a regular expression.
enum class HRFRegexMode { Off, On };

/// Reads values out of texts by the regular expression that a pattern makes. Does not change once
/// it is made, and may be used from any thread.
class HRFPatternMatcher
{
public:
    /// Fails when the regular expression is invalid.
    [[nodiscard]] static HRFResult<HRFPatternMatcher>
    matcherForPatternItems(const HRFPatternElements &items, HRFRegexMode mode);

    /// What the groups of the items captured, for every match in its order; empty when the
    /// expression matches nowhere. Fails when matching takes too long.
    [[nodiscard]] HRFResult<std::vector<HRFMetaCaptureMatch>>
    matchesInString(const QString &source) const;

    /// The regular expression.
    QString pattern() const;
    /// For each capturing group what it belongs to; nothing for groups in the literal text.
    const std::vector<std::optional<HRFMetaCaptureGroup>> &metaCaptureGroups() const
    {
        return m_groups;
    }

private:
    HRFPatternMatcher() = default;
    void addMatch(const icu::RegexMatcher &match, std::vector<HRFMetaCaptureMatch> &found) const;

    std::shared_ptr<const icu::RegexPattern> m_expression;
    std::vector<std::optional<HRFMetaCaptureGroup>> m_groups;
};
