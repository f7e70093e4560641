/* Preloaded into the program: the sound device is there at first, and gone for good after it has been asked
   for some times. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdio.h>

enum { connected = 0x313, asked_until_lost = 20 };

static int asked = 0;

void* alcOpenDevice(const char* name) {
  void* (*open)(const char*) = (void* (*)(const char*))dlsym(RTLD_NEXT, "alcOpenDevice");
  return asked > asked_until_lost ? NULL : open(name);
}

void alcGetIntegerv(void* device, int what, int count, int* values) {
  void (*get)(void*, int, int, int*) =
      (void (*)(void*, int, int, int*))dlsym(RTLD_NEXT, "alcGetIntegerv");
  get(device, what, count, values);
  if (what != connected || ++asked <= asked_until_lost) return;
  *values = 0;
  if (asked == asked_until_lost + 1) fputs("sound lost\n", stderr);
}
