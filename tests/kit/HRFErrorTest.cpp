#include "kit/HRFError.h"

#include <gtest/gtest.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

HRFError withTexts(const QString &description, const QString &suggestion,
                   const QString &underlying = {})
{
    HRFError error;
    error.description = description;
    error.recoverySuggestion = suggestion;
    if (!underlying.isNull())
        error.underlying = std::make_shared<const HRFError>(withTexts(underlying, {}));
    return error;
}

} // namespace

TEST(HRFError, TellsAllItsTextsInOneLine)
{
    HRFError chain = withTexts(u"Not saved."_s, {}, u"It cannot be opened."_s);
    HRFError cause = *chain.underlying;
    cause.underlying = std::make_shared<const HRFError>(HRFError::fromErrno(EACCES));
    chain.underlying = std::make_shared<const HRFError>(cause);
    const std::pair<HRFError, QString> cases[] = {
        {withTexts({}, {}), u""_s},
        {withTexts(u"It failed."_s, {}), u"It failed."_s},
        {withTexts(u"It failed."_s, u"Try again."_s, u"Full."_s), u"It failed: Try again: Full."_s},
        {withTexts(u"It failed..."_s, {}, u"Full"_s), u"It failed: Full"_s},
        {withTexts({}, u"Try again."_s), u"Try again."_s},
        {withTexts(u"Saving failed: Full"_s, u"Full."_s, u"Saving failed."_s),
         u"Saving failed: Full"_s},
        {withTexts(u"It failed."_s, u"."_s, u"\n"_s), u"It failed."_s},
        {withTexts(u"“a  b\r\nc.mp3”\n"_s, u"Two\u2028lines"_s), u"“a  b c.mp3”: Two lines"_s},
        {chain, u"Not saved: It cannot be opened: Permission denied"_s}};
    for (const auto &[error, text] : cases)
        EXPECT_EQ(error.fullText(), text) << qPrintable(text);
}

TEST(HRFError, KnowsALackOfPermission)
{
    const std::tuple<const char *, int, bool> cases[] = {
        {HRFFileErrorDomain, HRFFileErrorCode::writeNoPermission, true},
        {HRFFileErrorDomain, HRFFileErrorCode::writeUnknown, false},
        {HRFFileErrorDomain, EACCES, false},
        {HRFPOSIXErrorDomain, EACCES, true},
        {HRFPOSIXErrorDomain, EPERM, true},
        {HRFPOSIXErrorDomain, EROFS, false},
        {HRFLirraErrorDomain, EPERM, false}};
    for (const auto &[domain, code, isPermissionError] : cases) {
        HRFError error;
        error.domain = QLatin1StringView(domain);
        error.code = code;
        EXPECT_EQ(error.isPermissionError(), isPermissionError) << domain << ' ' << code;
        HRFError outer;
        outer.underlying = std::make_shared<const HRFError>(error);
        EXPECT_EQ(outer.isPermissionError(), isPermissionError) << "below: " << domain << code;
    }
}
