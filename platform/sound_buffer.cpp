#include "platform/sound_buffer.h"

#include <algorithm>
#include <new>
#include <utility>

#include "platform/export.h"
#include "platform/platform_host.h"
#include "platform/sound_device.h"

namespace platform {
namespace {

struct Listener {
  PlatformSoundRoutine routine = nullptr;
  void* context = nullptr;
};

constinit Listener listener;

}  // namespace

SoundBuffer::SoundBuffer(std::shared_ptr<Pcm> pcm) : pcm_(std::move(pcm)) {}

SoundBuffer::~SoundBuffer() = default;

SoundBuffer* SoundBuffer::create(std::shared_ptr<Pcm> pcm) {
  if (!sound_device().acquire()) return nullptr;
  auto* buffer = new (std::nothrow) SoundBuffer(std::move(pcm));
  if (buffer == nullptr) {
    sound_device().release();
    return nullptr;
  }
  if (buffer->voice_.create()) return buffer;
  buffer->Release();
  return nullptr;
}

ULONG SoundBuffer::Release() {
  delete this;
  sound_device().release();
  return 0;
}

HRESULT SoundBuffer::GetStatus(LPDWORD status) {
  if (status == nullptr) return DSERR_INVALIDPARAM;
  *status = 0;
  if (lost()) {
    *status = DSBSTATUS_BUFFERLOST;
  } else if (voice_.playing()) {
    *status = looping_ ? DSBSTATUS_PLAYING | DSBSTATUS_LOOPING : DSBSTATUS_PLAYING;
  }
  return DS_OK;
}

HRESULT SoundBuffer::Lock(DWORD offset, DWORD bytes, LPVOID* part1, LPDWORD bytes1, LPVOID* part2,
                          LPDWORD bytes2, DWORD flags) {
  if (lost()) return DSERR_BUFFERLOST;
  if (flags != 0 || part1 == nullptr || bytes1 == nullptr) return DSERR_INVALIDPARAM;
  if (offset >= size() || bytes == 0 || bytes > size()) return DSERR_INVALIDPARAM;
  *bytes1 = std::min(bytes, size() - offset);
  *part1 = pcm_->bytes.data() + offset;
  const DWORD rest = bytes - *bytes1;
  if (part2 != nullptr) *part2 = rest > 0 ? pcm_->bytes.data() : nullptr;
  if (bytes2 != nullptr) *bytes2 = part2 != nullptr ? rest : 0;
  return DS_OK;
}

HRESULT SoundBuffer::Unlock(LPVOID part1, DWORD bytes1, LPVOID, DWORD bytes2) {
  const auto* start = static_cast<const BYTE*>(part1);
  const BYTE* first = pcm_->bytes.data();
  if (start < first || start >= first + size()) return DSERR_INVALIDPARAM;
  if (bytes1 > 0 || bytes2 > 0) ++pcm_->version;
  return DS_OK;
}

bool SoundBuffer::load() {
  if (loaded_version_ == pcm_->version) return true;
  try {
    if (!voice_.load(to_stereo(*pcm_), pcm_->format.nSamplesPerSec)) return false;
  } catch (const std::bad_alloc&) {
    return false;
  }
  loaded_version_ = pcm_->version;
  return true;
}

HRESULT SoundBuffer::Play(DWORD reserved, DWORD priority, DWORD flags) {
  if (reserved != 0 || priority != 0 || (flags & ~DSBPLAY_LOOPING) != 0) return DSERR_INVALIDPARAM;
  if (lost()) return DSERR_BUFFERLOST;
  const bool looping = (flags & DSBPLAY_LOOPING) != 0;
  const bool goes_on = voice_.playing();
  if (goes_on && looping == looping_) return DS_OK;
  if (goes_on) frame_ = voice_.frame();
  if (!load()) return DSERR_OUTOFMEMORY;
  looping_ = looping;
  if (!voice_.play(frame_, looping)) {
    sound_device().lose();  // a device that does not play is as good as gone
    return DSERR_BUFFERLOST;
  }
  frame_ = 0;  // where the next playing starts once this one has come to its end
  if (!goes_on && listener.routine != nullptr) {
    listener.routine(pcm_->bytes.data(), pcm_->bytes.size(), listener.context);
  }
  return DS_OK;
}

HRESULT SoundBuffer::Stop() {
  if (voice_.playing()) frame_ = voice_.frame();
  voice_.stop();
  return DS_OK;
}

HRESULT SoundBuffer::SetCurrentPosition(DWORD position) {
  if (position >= size()) return DSERR_INVALIDPARAM;
  const std::size_t frame = position / pcm_->format.nBlockAlign;
  if (voice_.playing()) {
    voice_.seek(frame);
  } else {
    frame_ = frame;
  }
  return DS_OK;
}

HRESULT SoundBuffer::Restore() {
  if (!lost()) return DS_OK;
  if (!sound_device().reopen() || !voice_.create()) return DSERR_BUFFERLOST;
  clear(*pcm_);
  frame_ = 0;
  return DS_OK;
}

}  // namespace platform

PLATFORM_EXPORT void platform_on_sound(PlatformSoundRoutine routine, void* context) {
  platform::listener = {routine, context};
}
