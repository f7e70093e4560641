/// The two kinds of OpenAL device behind the sound calls, and what differs between OpenAL versions.
#pragma once

#include <AL/alc.h>

#include <cstddef>

namespace platform {

/// The machine's default device, or null. A stand-in that nobody hears counts as none.
ALCdevice* open_default_device();

/// A device that is no hardware: its mix is taken with render_frames. Null where OpenAL has none.
ALCdevice* open_rendered_device();

/// A context on the device in which samples reach the ears as they are; null if it cannot be made.
ALCcontext* create_context(ALCdevice* device, bool rendered);

/// False once the device has gone. Where OpenAL cannot tell, true.
bool is_connected(ALCdevice* device);

/// The next stereo frames of a rendered device's mix; 1.0 is full level, louder is possible.
void render_frames(ALCdevice* device, float* samples, std::size_t frames);

}  // namespace platform
