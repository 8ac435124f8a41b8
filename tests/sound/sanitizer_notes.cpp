// What the sanitizers may pass over: the sound server's and the device library, whose own locks they cannot
// see.

extern "C" {
const char* __tsan_default_suppressions();
const char* __lsan_default_suppressions();

const char* __tsan_default_suppressions() {
  return "race:libpulse\nrace:libSDL2\n";
}
const char* __lsan_default_suppressions() {
  return "leak:libpulse\nleak:libSDL2\n";
}
}
