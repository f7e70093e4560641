/// What a host asks of the platform layer: to know its windows, and to hand it messages and sound.
/// The module never includes this; it knows only the operating system's own calls.
#pragma once

#include <cstddef>
#include <cstdint>

#if defined(__cplusplus)
extern "C" {
#endif

/// The class under which the module looks for the host's main window.
#define PLATFORM_MAIN_WINDOW "FS98MAIN"

/// Makes a window known to FindWindowA under `window_class`. A null `window` takes the class away.
void platform_register_window(const char* window_class, void* window);

/// Where MessageBoxA goes instead of a window or standard error. A null routine restores the default.
typedef void (*PlatformMessageRoutine)(const char* text, const char* caption, void* context);
void platform_on_message(PlatformMessageRoutine routine, void* context);

/// Where sound goes. Chosen before the first DirectSoundCreate; later calls change nothing until all
/// sound objects are released.
enum PlatformAudio {
  PLATFORM_AUDIO_DEVICE,    ///< the machine's default device, opened again when it is lost
  PLATFORM_AUDIO_RENDERED,  ///< no device: platform_render_audio takes the mix in simulated time
  PLATFORM_AUDIO_NONE       ///< DirectSoundCreate fails, as on a machine without sound
};
void platform_choose_audio(enum PlatformAudio audio);

/// Chooses and takes the sound there at once: what plays falls silent, and every sound buffer is lost
/// until it is restored, as when a device goes away.
void platform_move_audio(enum PlatformAudio audio);

/// Whether the chosen audio can be had now: 0 where no device answers.
int platform_has_audio(void);

/// How loud the device plays, 0 to 1 of what the module asks for; 1 at first. It does not scale a
/// rendered mix.
void platform_set_volume(float volume);

/// The format of the rendered mix.
#define PLATFORM_AUDIO_RATE     44100
#define PLATFORM_AUDIO_CHANNELS 2

/// Takes the next `frames` stereo frames of the mix, signed 16 bit interleaved. Silence while nothing
/// plays. Only with PLATFORM_AUDIO_RENDERED.
void platform_render_audio(int16_t* samples, size_t frames);

/// A stream of the host's own sound beside the module's, on the same device. Opening it returns 0 where
/// there is no device; a stream whose device goes away is no longer open, and can be opened again.
int platform_open_stream(void);
int platform_stream_is_open(void);
void platform_close_stream(void);
/// Stereo frames that have been fed and not been played.
size_t platform_stream_waiting(void);
/// Appends stereo frames, signed 16 bit interleaved, to what is waiting.
void platform_feed_stream(const int16_t* samples, size_t frames);

/// Gets the samples of each sound that starts, as the module wrote them. A null routine ends that.
typedef void (*PlatformSoundRoutine)(const void* samples, size_t bytes, void* context);
void platform_on_sound(PlatformSoundRoutine routine, void* context);

/// Marks every playing or idle sound buffer as lost, as a device that goes away does.
void platform_lose_audio(void);

#if defined(__cplusplus)
}
#endif
