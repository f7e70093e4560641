/// The sound buffer behind IDirectSoundBuffer.
#pragma once

#include <dsound.h>

#include <memory>

#include "platform/pcm.h"
#include "platform/voice.h"

namespace platform {

/// A position in the samples is kept here while nothing plays, in the voice while it plays.
class SoundBuffer final : public IDirectSoundBuffer {
 public:
  /// A buffer over `pcm`; null if the device has no room for it.
  static SoundBuffer* create(std::shared_ptr<Pcm> pcm);

  const std::shared_ptr<Pcm>& pcm() const { return pcm_; }
  bool lost() const { return !voice_.alive(); }

  ULONG Release() override;
  HRESULT GetStatus(LPDWORD status) override;
  HRESULT Lock(DWORD offset, DWORD bytes, LPVOID* part1, LPDWORD bytes1, LPVOID* part2, LPDWORD bytes2,
               DWORD flags) override;
  HRESULT Play(DWORD reserved, DWORD priority, DWORD flags) override;
  HRESULT SetCurrentPosition(DWORD position) override;
  HRESULT Stop() override;
  HRESULT Unlock(LPVOID part1, DWORD bytes1, LPVOID part2, DWORD bytes2) override;
  HRESULT Restore() override;

 private:
  explicit SoundBuffer(std::shared_ptr<Pcm> pcm);
  ~SoundBuffer();
  DWORD size() const { return static_cast<DWORD>(pcm_->bytes.size()); }
  bool load();

  std::shared_ptr<Pcm> pcm_;
  Voice voice_;
  unsigned loaded_version_ = 0;  ///< of the samples that the voice has; 0: none
  std::size_t frame_ = 0;        ///< where playing starts
  bool looping_ = false;
};

}  // namespace platform
