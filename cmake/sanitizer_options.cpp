// What the sanitizers of every program of a sanitized build ask for.

extern "C" const char* __ubsan_default_options() { return "print_stacktrace=1"; }

extern "C" const char* __lsan_default_options() { return "print_suppressions=0"; }

// Caches that libraries keep to the end of a program. Nothing of our own stands here.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\n"
         "leak:libpango\n"
         "leak:libcairo\n"
         "leak:libglib\n"
         "leak:libSDL2\n"
         "leak:libsphinxbase\n"
         "leak:libX11\n"
         "leak:libdbus\n"
         "leak:_dri.so\n";
}
