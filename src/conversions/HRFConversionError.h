#pragma once

#include "kit/HRFError.h"

/// Codes of conversions' errors in HRFLirraErrorDomain.
namespace HRFConversionErrorCode {
/// A text is no value of the attribute that it was composed for.
inline constexpr int valueRefused = -1;
/// A batch failed for some files, which are selected then.
inline constexpr int someFilesFailed = 1;
} // namespace HRFConversionErrorCode

inline HRFError HRFConversionError(int code, const QString &description,
                                   const QString &recoverySuggestion = {})
{
    return {.domain = QString::fromLatin1(HRFLirraErrorDomain),
            .code = code,
            .description = description,
            .recoverySuggestion = recoverySuggestion};
}
