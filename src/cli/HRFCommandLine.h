#pragma once

/// Exit statuses of lirra-cli.
namespace HRFExitStatus {
inline constexpr int done = 0;
inline constexpr int someFailed = 1; ///< each named on standard error, the others done
inline constexpr int wrongUsage = 2; ///< nothing was touched
inline constexpr int interrupted = 130; ///< the running file is finished, the rest left
} // namespace HRFExitStatus

/// Reads the command line and runs the command.
///
/// @return one of HRFExitStatus
int HRFRunCommandLine(int argc, char **argv);
