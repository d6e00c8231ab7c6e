// What libraries that are not built with the sanitizers do is not reported.

// NOLINTBEGIN(bugprone-reserved-identifier): the sanitizers look for these names.

extern "C" const char *__lsan_default_suppressions();
extern "C" const char *__tsan_default_suppressions();

/// These do not tidy up at the end.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig\nleak:libdbus\n";
}

/// Qt paints large areas with threads of its own.
extern "C" const char *__tsan_default_suppressions()
{
    return "called_from_lib:libQt6Gui.so\ncalled_from_lib:libQt6Core.so\n";
}

// NOLINTEND(bugprone-reserved-identifier)
