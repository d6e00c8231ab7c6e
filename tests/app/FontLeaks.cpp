extern "C" const char *__lsan_default_suppressions();

/// The font library does not tidy up at the end.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}
