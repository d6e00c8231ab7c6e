#pragma once

/// Lets a program be ended from outside between two files, never within one.
namespace HRFInterruption {

/// What the same signal does when it comes again.
enum class Again { AsksOnly, EndsAtOnce };

/// From now on SIGINT, SIGTERM and SIGHUP only ask for an end, and a closed pipe is a write error.
void handleSignals(Again again);
/// Whether an end was asked for.
bool isRequested();
/// Can be read from then on.
int descriptor();

} // namespace HRFInterruption
