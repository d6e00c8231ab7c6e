#pragma once

#include <QString>
#include <QStringList>

#include <expected>
#include <functional>
#include <memory>

/// Errors of the tag engines: see HRFTagEngineErrorCode in tags/.
inline constexpr const char *HRFTagEngineErrorDomain = "HRFTagEngineErrorDomain";
/// Errors of the application: see HRFLirraErrorCode.
inline constexpr const char *HRFLirraErrorDomain = "com.harrowfield.lirra.ErrorDomain";
/// Errors of the file system at large: see HRFFileErrorCode.
inline constexpr const char *HRFFileErrorDomain = "HRFFileErrorDomain";
/// Errors of a system call; the code is its errno.
inline constexpr const char *HRFPOSIXErrorDomain = "POSIX";

namespace HRFFileErrorCode {
inline constexpr int noSuchFile = 4;
inline constexpr int writeUnknown = 512;
inline constexpr int writeNoPermission = 513;
inline constexpr int writeFileExists = 516;
} // namespace HRFFileErrorCode

namespace HRFLirraErrorCode {
/// A file that the process may write could not be saved.
inline constexpr int saveFailed = -2;
} // namespace HRFLirraErrorCode

/// Why something failed, in words for the user and in numbers for the program.
struct HRFError
{
    QString domain{};
    int code = 0;
    /// One sentence that names what failed.
    QString description{};
    /// Why, or what to do about it.
    QString recoverySuggestion{};
    /// The file concerned, as shown to the user; empty where no file is.
    QString path{};
    std::shared_ptr<const HRFError> underlying{};
    /// Titles of the ways out that the user may choose from.
    QStringList recoveryOptions{};
    /// Carries out the option with the given index; answers whether the failed work may be tried
    /// again.
    std::function<bool(const HRFError &, int)> recoveryAttempter{};

    /// The error of a failed system call.
    static HRFError fromErrno(int code);

    /// Whether a file could not be written for lack of permission.
    bool isPermissionError() const;

    /// Description, reason and the underlying errors' texts in one line.
    QString fullText() const;
};

/// The outcome of something that can fail: a value, or the reason why there is none.
template <class T> using HRFResult = std::expected<T, HRFError>;
