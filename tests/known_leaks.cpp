/// What the libraries under the project leave behind at the end, once a process.
extern "C" const char* __lsan_default_suppressions(); // NOLINT(bugprone-reserved-identifier): the sanitizer's own
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions()
{
    return "leak:QLayoutPrivate::createWidgetItem\nleak:libQt6SerialBus\nleak:libfontconfig\nleak:libdbus-1\n";
}
