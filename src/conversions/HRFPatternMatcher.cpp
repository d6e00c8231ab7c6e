#include "conversions/HRFPatternMatcher.h"

#include <QCoreApplication>
#include <unicode/uchar.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::nanoseconds timeLimit = std::chrono::seconds(1); ///< of the processor
constexpr int32_t stackLimit = 8'000'000; ///< bytes

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFPatternMatcher", text);
}

/// The time that all finds in one text may take together. ICU's own limit counts the backtracking
/// of one find, not how often and how far it goes forward.
class TimeBudget
{
public:
    /// Asks all finds of a matcher to keep to the budget, which must live as long.
    void limit(icu::RegexMatcher &matcher, UErrorCode &status) const
    {
        matcher.setMatchCallback(&whileMatching, this, status);
        matcher.setFindProgressCallback(&betweenStarts, this, status);
    }

private:
    static std::chrono::nanoseconds now()
    {
        timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
    }
    bool isLeft() const { return now() < m_end; }

    static UBool U_CALLCONV whileMatching(const void *budget, int32_t /*steps*/)
    {
        return UBool(static_cast<const TimeBudget *>(budget)->isLeft());
    }
    /// Called for every character of the text: does not look at the clock each time.
    static UBool U_CALLCONV betweenStarts(const void *context, int64_t /*place*/)
    {
        constexpr unsigned betweenLooks = 64;
        const auto *budget = static_cast<const TimeBudget *>(context);
        return UBool(++budget->m_starts % betweenLooks != 0 || budget->isLeft());
    }

    const std::chrono::nanoseconds m_end = now() + timeLimit;
    mutable unsigned m_starts = 0;
};

/// The text without a copy of it.
icu::UnicodeString aliasOf(const QString &text)
{
    return {false, text.utf16(), int32_t(text.size())};
}

QString textOf(const icu::UnicodeString &text)
{
    return QStringView(text.getBuffer(), text.length()).toString();
}

HRFError errorOf(UErrorCode status)
{
    return {
        .domain = QString::fromLatin1(HRFRegularExpressionErrorDomain),
        .code = int(status),
        .description =
            tr("The regular expression failed: %1").arg(QString::fromLatin1(u_errorName(status)))};
}

HRFError invalidError(UErrorCode status)
{
    HRFError error = errorOf(status);
    error.description = tr("Regular Expression is invalid");
    error.recoverySuggestion = tr("Make sure that the supplied pattern has a valid Regex syntax, "
                                  "or toggle Regex matching off.");
    return error;
}

HRFError matchError(UErrorCode status)
{
    HRFError error = errorOf(status);
    if (status == U_REGEX_STOPPED_BY_CALLER || status == U_REGEX_STACK_OVERFLOW) {
        error.description = tr("Matching the pattern takes too long");
        error.recoverySuggestion = tr("Try a pattern with fewer repetitions.");
    }
    return error;
}

std::unique_ptr<icu::RegexPattern> compiled(const QString &expression, UErrorCode &status)
{
    UParseError place;
    return std::unique_ptr<icu::RegexPattern>(
        icu::RegexPattern::compile(aliasOf(expression), place, status));
}

/// The literal text as a regular expression that matches it. In names a slash is a colon.
QString expressionForLiteral(const QString &literal, HRFRegexMode mode)
{
    QString expression;
    for (const QChar character : literal) {
        if (mode == HRFRegexMode::Off && uR"(*?+[](){}^$|\./)"_s.contains(character))
            expression += u'\\';
        expression += character;
    }
    return expression.replace(R"(\/)"_L1, R"([\/:])"_L1);
}

/// How many capturing groups an expression has by itself; 0 when it is none.
std::size_t groupCount(const QString &expression)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto pattern = compiled(expression, status);
    if (U_FAILURE(status))
        return 0;
    const std::unique_ptr<icu::RegexMatcher> matcher(pattern->matcher(status));
    return std::size_t(matcher->groupCount());
}

/// The number that a text begins with, in the digits of any script; 0 without one.
qlonglong leadingInteger(const QString &text)
{
    using Limits = std::numeric_limits<qlonglong>;
    constexpr qlonglong base = 10;
    qlonglong number = 0;
    for (const char32_t character : text.toUcs4()) {
        const qlonglong digit = u_charDigitValue(UChar32(character));
        if (digit < 0)
            break;
        if (number > (Limits::max() - digit) / base)
            return Limits::max();
        number = number * base + digit;
    }
    return number;
}

} // namespace

HRFResult<HRFPatternMatcher>
HRFPatternMatcher::matcherForPatternItems(const HRFPatternElements &items, HRFRegexMode mode)
{
    HRFPatternMatcher matcher;
    QString expression;
    std::size_t ordinal = 0;
    for (const HRFPatternElement &element : items) {
        if (const auto *literal = std::get_if<QString>(&element)) {
            const QString piece = expressionForLiteral(*literal, mode);
            expression += piece;
            if (mode == HRFRegexMode::On)
                matcher.m_groups.resize(matcher.m_groups.size() + groupCount(piece));
        } else {
            const auto &item = std::get<HRFPatternItem>(element);
            matcher.m_groups.emplace_back(HRFMetaCaptureGroup{item, ordinal++});
            expression += item.regexString();
        }
    }
    UErrorCode status = U_ZERO_ERROR;
    matcher.m_expression = compiled(expression, status);
    if (U_FAILURE(status))
        return std::unexpected(mode == HRFRegexMode::On ? invalidError(status) : errorOf(status));
    return matcher;
}

HRFResult<std::vector<HRFMetaCaptureMatch>>
HRFPatternMatcher::matchesInString(const QString &source) const
{
    // Names on disk may have accents as characters of their own, typed ones have not.
    const QString text = source.normalized(QString::NormalizationForm_C);
    const icu::UnicodeString alias = aliasOf(text);
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::RegexMatcher> matcher(m_expression->matcher(alias, status));
    if (U_FAILURE(status))
        return std::unexpected(errorOf(status));
    const TimeBudget budget;
    budget.limit(*matcher, status);
    matcher->setStackLimit(stackLimit, status);
    std::vector<HRFMetaCaptureMatch> found;
    while (matcher->find(status) && U_SUCCESS(status))
        addMatch(*matcher, found);
    if (U_FAILURE(status))
        return std::unexpected(matchError(status));
    return found;
}

void HRFPatternMatcher::addMatch(const icu::RegexMatcher &match,
                                 std::vector<HRFMetaCaptureMatch> &found) const
{
    const std::size_t count = std::min(m_groups.size(), std::size_t(match.groupCount()));
    for (std::size_t i = 0; i < count; ++i) {
        UErrorCode status = U_ZERO_ERROR;
        const int32_t number = int32_t(i) + 1;
        const bool isCaptured = match.start(number, status) >= 0 && U_SUCCESS(status);
        const std::optional<HRFMetaCaptureGroup> &group = m_groups[i];
        if (!isCaptured || !group || group->patternItem.isDummy())
            continue;
        const HRFPatternItem &item = group->patternItem;
        const QString text = textOf(match.group(number, status)).trimmed();
        found.push_back(
            {item, item.representsNumericValue() ? QVariant(leadingInteger(text)) : text});
    }
}

QString HRFPatternMatcher::pattern() const
{
    return textOf(m_expression->pattern());
}
