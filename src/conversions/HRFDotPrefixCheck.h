#pragma once

#include "kit/HRFError.h"

#include <QString>

/// The question about names that begin with a dot, which file managers hide.
namespace HRFDotPrefixCheck {

/// The answers, as they are remembered for a batch.
inline constexpr int noAnswer = 0;
inline constexpr int removeDot = 1000;
inline constexpr int cancel = 1001;
inline constexpr int proceed = 1002;

inline constexpr int errorCode = 404;

/// Whether a component begins with a dot; "." and ".." do not count.
bool isNeededFor(const QString &path);
/// The path without "." and "..", and without the dots that components begin with.
QString withoutDots(const QString &path);
/// What is wrong with such names.
HRFError error();

/// Whether to go on with a new name or path, which loses its dots when the user says so. Asks on
/// the main thread, unless there is an answer already, and remembers it.
///
/// @param title what is being done
bool shouldProceed(QString &path, int &appliedToAllResponse, const QString &title);

} // namespace HRFDotPrefixCheck
