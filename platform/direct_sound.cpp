#include <dsound.h>

#include <algorithm>
#include <memory>
#include <new>

#include "platform/sound_buffer.h"
#include "platform/sound_device.h"
#include "platform/window_list.h"

namespace platform {
namespace {

bool is_complete(const DSBUFFERDESC& description) {
  const bool size_known =
      description.dwSize == sizeof(DSBUFFERDESC1) || description.dwSize == sizeof(DSBUFFERDESC);
  return size_known && description.lpwfxFormat != nullptr && description.dwBufferBytes >= DSBSIZE_MIN &&
         description.dwBufferBytes <= DSBSIZE_MAX;
}

std::shared_ptr<Pcm> make_pcm(const WAVEFORMATEX& format, DWORD bytes) {
  auto pcm = std::make_shared<Pcm>();
  pcm->format = format;
  pcm->bytes.resize(bytes);
  clear(*pcm);
  return pcm;
}

/// Hands out a buffer over `pcm`.
HRESULT give_buffer(std::shared_ptr<Pcm> pcm, LPDIRECTSOUNDBUFFER* buffer) {
  *buffer = sound_device().reopen() ? SoundBuffer::create(std::move(pcm)) : nullptr;
  return *buffer != nullptr ? DS_OK : DSERR_OUTOFMEMORY;
}

class DirectSound final : public IDirectSound {
 public:
  ULONG Release() override;
  HRESULT CreateSoundBuffer(LPCDSBUFFERDESC description, LPDIRECTSOUNDBUFFER* buffer,
                            LPUNKNOWN outer) override;
  HRESULT DuplicateSoundBuffer(LPDIRECTSOUNDBUFFER original, LPDIRECTSOUNDBUFFER* duplicate) override;
  HRESULT SetCooperativeLevel(HWND window, DWORD level) override;

 private:
  ~DirectSound() = default;

  bool level_set_ = false;
};

ULONG DirectSound::Release() {
  delete this;
  sound_device().release();
  return 0;
}

HRESULT DirectSound::CreateSoundBuffer(LPCDSBUFFERDESC description, LPDIRECTSOUNDBUFFER* buffer,
                                       LPUNKNOWN outer) {
  if (buffer == nullptr) return DSERR_INVALIDPARAM;
  *buffer = nullptr;
  if (outer != nullptr) return DSERR_NOAGGREGATION;
  if (!level_set_) return DSERR_PRIOLEVELNEEDED;
  if (description == nullptr || !is_complete(*description)) return DSERR_INVALIDPARAM;
  WAVEFORMATEX format;
  const HRESULT readable = read_format(*description->lpwfxFormat, format);
  if (FAILED(readable)) return readable;
  try {
    return give_buffer(make_pcm(format, description->dwBufferBytes), buffer);
  } catch (const std::bad_alloc&) {
    return DSERR_OUTOFMEMORY;
  }
}

HRESULT DirectSound::DuplicateSoundBuffer(LPDIRECTSOUNDBUFFER original,
                                          LPDIRECTSOUNDBUFFER* duplicate) {
  if (original == nullptr || duplicate == nullptr) return DSERR_INVALIDPARAM;
  *duplicate = nullptr;
  const auto& source = static_cast<const SoundBuffer&>(*original);
  if (source.lost()) return DSERR_BUFFERLOST;
  return give_buffer(source.pcm(), duplicate);
}

HRESULT DirectSound::SetCooperativeLevel(HWND window, DWORD level) {
  if (!window_exists(window)) return DSERR_INVALIDPARAM;
  if (level < DSSCL_NORMAL || level > DSSCL_WRITEPRIMARY) return DSERR_INVALIDPARAM;
  level_set_ = true;
  return DS_OK;
}

}  // namespace
}  // namespace platform

HRESULT DirectSoundCreate(LPCGUID device, LPDIRECTSOUND* sound, LPUNKNOWN outer) {
  if (sound == nullptr) return DSERR_INVALIDPARAM;
  *sound = nullptr;
  if (outer != nullptr) return DSERR_NOAGGREGATION;
  if (device != nullptr || !platform::sound_device().acquire()) return DSERR_NODRIVER;
  *sound = new (std::nothrow) platform::DirectSound();
  if (*sound != nullptr) return DS_OK;
  platform::sound_device().release();
  return DSERR_OUTOFMEMORY;
}
