#pragma once

/// The program `lirra`: opens a list window with the files and folders of the command line, or
/// hands them to the program that runs already.
///
/// @return the exit status
int HRFRunDesktopProgram(int argc, char **argv);
