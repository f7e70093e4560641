#include "platform/openal_device.h"

#include <AL/alext.h>
#include <fcntl.h>
#include <unistd.h>

#include <string_view>

#include "platform/platform_host.h"

namespace platform {
namespace {

template <typename Routine>
Routine alc_routine(const char* name) {
  return reinterpret_cast<Routine>(alcGetProcAddress(nullptr, name));
}

/// OpenAL tries one sound system after the other, and each says on standard error why it is not there.
/// That there is no sound the host says, once.
class QuietErrors {
 public:
  QuietErrors() : kept_(fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3)) {
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (kept_ >= 0 && nowhere >= 0) dup2(nowhere, STDERR_FILENO);
    if (nowhere >= 0) ::close(nowhere);
  }
  ~QuietErrors() {
    if (kept_ < 0) return;
    dup2(kept_, STDERR_FILENO);
    ::close(kept_);
  }
  QuietErrors(const QuietErrors&) = delete;
  QuietErrors& operator=(const QuietErrors&) = delete;

 private:
  int kept_;
};

/// OpenAL offers this one when no sound system answers: it plays, but there is nothing to hear.
constexpr std::string_view silent_device = "No Output";

}  // namespace

ALCdevice* open_default_device() {
  const QuietErrors quiet;
  ALCdevice* device = alcOpenDevice(nullptr);
  if (device == nullptr) return nullptr;
  const ALCchar* name = alcGetString(device, ALC_ALL_DEVICES_SPECIFIER);
  if (name == nullptr || name != silent_device) return device;
  alcCloseDevice(device);
  return nullptr;
}

ALCdevice* open_rendered_device() {
  const QuietErrors quiet;
  if (!alcIsExtensionPresent(nullptr, "ALC_SOFT_loopback")) return nullptr;
  const auto open = alc_routine<LPALCLOOPBACKOPENDEVICESOFT>("alcLoopbackOpenDeviceSOFT");
  return open != nullptr ? open(nullptr) : nullptr;
}

ALCcontext* create_context(ALCdevice* device, bool rendered) {
  // Floating point, so that the mix is exact: no dither, no limiter, silence is silence.
  static constexpr ALCint rendered_attributes[] = {ALC_FREQUENCY,
                                                   PLATFORM_AUDIO_RATE,
                                                   ALC_FORMAT_CHANNELS_SOFT,
                                                   ALC_STEREO_SOFT,
                                                   ALC_FORMAT_TYPE_SOFT,
                                                   ALC_FLOAT_SOFT,
                                                   ALC_HRTF_SOFT,
                                                   ALC_FALSE,
                                                   0};
  static constexpr ALCint device_attributes[] = {ALC_HRTF_SOFT, ALC_FALSE, 0};
  return alcCreateContext(device, rendered ? rendered_attributes : device_attributes);
}

bool is_connected(ALCdevice* device) {
  if (!alcIsExtensionPresent(device, "ALC_EXT_disconnect")) return true;
  ALCint connected = ALC_TRUE;
  alcGetIntegerv(device, ALC_CONNECTED, 1, &connected);
  return connected != ALC_FALSE;
}

void render_frames(ALCdevice* device, float* samples, std::size_t frames) {
  static const auto render = alc_routine<LPALCRENDERSAMPLESSOFT>("alcRenderSamplesSOFT");
  render(device, samples, static_cast<ALCsizei>(frames));
}

}  // namespace platform
