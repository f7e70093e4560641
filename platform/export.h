/// What of the platform library other libraries see: everything else stays inside.
#pragma once

#define PLATFORM_EXPORT extern "C" __attribute__((visibility("default")))
