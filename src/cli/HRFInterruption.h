#pragma once

/// Lets a run of lirra-cli be interrupted between two files, never within one.
namespace HRFInterruption {

/// From now on SIGINT, SIGTERM and SIGHUP only ask for an end, and a closed pipe is a write error.
void handleSignals();
/// Whether an end was asked for.
bool isRequested();
/// Can be read from then on.
int descriptor();

} // namespace HRFInterruption
