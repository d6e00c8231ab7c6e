#pragma once

struct stat;

/// Gives the copy of a file or folder the owner, the extended attributes of users and of access
/// control lists, the mode and the times of its original. What the copy's file system does not
/// know, or the user may not set, is left out. 0, or an errno.
///
/// @param original open for reading
/// @param status that of the original; its times are from before it was read
int HRFKeepAttributes(int original, const struct stat &status, int copy);
