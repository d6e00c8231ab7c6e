#include "kit/HRFError.h"

#include <gtest/gtest.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<const HRFError> shared(const HRFError &error)
{
    return std::make_shared<const HRFError>(error);
}

HRFError withTexts(const QString &description, const QString &suggestion,
                   const QString &underlying = {})
{
    HRFError error;
    error.description = description;
    error.recoverySuggestion = suggestion;
    if (!underlying.isNull())
        error.underlying = shared(withTexts(underlying, {}));
    return error;
}

} // namespace

TEST(HRFError, TellsAllItsTextsInOneLine)
{
    const struct
    {
        HRFError error;
        QString text;
    } cases[] = {
        {withTexts({}, {}), u""_s},
        {withTexts(u"It failed."_s, {}), u"It failed."_s},
        {withTexts(u"It failed."_s, u"Try again."_s, u"Full."_s), u"It failed: Try again: Full."_s},
        {withTexts(u"It failed..."_s, {}, u"Full"_s), u"It failed: Full"_s},
        {withTexts({}, u"Try again."_s), u"Try again."_s},
        {withTexts(u"Saving failed: Full"_s, u"Full."_s, u"Saving failed."_s),
         u"Saving failed: Full"_s},
        {withTexts(u"It failed."_s, u"."_s, u"\n"_s), u"It failed."_s},
        {withTexts(u"“a  b\r\nc.mp3”\n"_s, u"Two\u2028lines"_s), u"“a  b c.mp3”: Two lines"_s}};
    for (const auto &[error, text] : cases)
        EXPECT_EQ(error.fullText(), text) << qPrintable(text);
}

TEST(HRFError, TellsTheWholeChainOfCauses)
{
    HRFError error = withTexts(u"Lirra failed to save the file “x.mp3”."_s, {});
    HRFError cause = withTexts(u"The file cannot be opened."_s, {});
    cause.underlying = shared(HRFError::fromErrno(EACCES));
    error.underlying = shared(cause);
    EXPECT_EQ(
        error.fullText(),
        u"Lirra failed to save the file “x.mp3”: The file cannot be opened: Permission denied"_s);
}

TEST(HRFError, KnowsALackOfPermission)
{
    const struct
    {
        const char *domain;
        int code;
        bool isPermissionError;
    } cases[] = {{HRFFileErrorDomain, HRFFileErrorCode::writeNoPermission, true},
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
        outer.underlying = shared(error);
        EXPECT_EQ(outer.isPermissionError(), isPermissionError) << "below: " << domain << code;
    }
}
