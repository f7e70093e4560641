// Sound buffers as objects: what they accept, how they are written, how they are lost.
#include "tests/platform/rendered_sound.h"

namespace {

using SoundBuffers = RenderedSound;

struct Locked {
  HRESULT result = DS_OK;
  void *part1 = nullptr, *part2 = nullptr;
  DWORD bytes1 = 77, bytes2 = 77;
};

Locked lock(IDirectSoundBuffer& buffer, DWORD offset, DWORD bytes) {
  Locked locked;
  locked.result =
      buffer.Lock(offset, bytes, &locked.part1, &locked.bytes1, &locked.part2, &locked.bytes2, 0);
  return locked;
}

TEST_F(SoundBuffers, OnlyPlayableDescriptionsAreAccepted) {
  WAVEFORMATEX compressed = pcm_format(1, 16, 44100);
  compressed.wFormatTag = 2;
  WAVEFORMATEX misaligned = pcm_format(2, 16, 44100);
  misaligned.nBlockAlign = 3;
  const std::tuple<const char*, WAVEFORMATEX, DWORD, HRESULT> cases[] = {
      {"smallest", pcm_format(1, 8, 100), 4, DS_OK},
      {"too small", pcm_format(1, 8, 44100), 3, DSERR_INVALIDPARAM},
      {"too large", pcm_format(1, 8, 44100), DSBSIZE_MAX + 1, DSERR_INVALIDPARAM},
      {"compressed", compressed, 1000, DSERR_BADFORMAT},
      {"misaligned", misaligned, 1000, DSERR_BADFORMAT},
      {"24 bit", pcm_format(1, 24, 44100), 1000, DSERR_BADFORMAT},
      {"six channels", pcm_format(6, 16, 44100), 1000, DSERR_BADFORMAT},
      {"no channel", pcm_format(0, 16, 44100), 1000, DSERR_BADFORMAT},
      {"no rate", pcm_format(1, 16, 0), 1000, DSERR_BADFORMAT},
  };
  for (const auto& [what, format, bytes, result] : cases) {
    Buffer buffer;
    EXPECT_EQ(create(format, bytes, buffer), result) << what;
    EXPECT_EQ(buffer != nullptr, result == DS_OK) << what;
  }
}

TEST_F(SoundBuffers, AnExtensibleFormatIsPcmAndWhole) {
  const std::tuple<const char*, WORD, WORD, WORD, DWORD, HRESULT> cases[] = {
      {"12 of 16 bits used", 16, 12, 22, 1, DS_OK},
      {"all bits used", 16, 16, 22, 1, DS_OK},
      {"17 of 16 bits", 16, 17, 22, 1, DSERR_INVALIDPARAM},
      {"cut off", 16, 16, 21, 1, DSERR_INVALIDPARAM},
      {"float", 16, 16, 22, 3, DSERR_BADFORMAT},
      {"24 bit", 24, 24, 22, 1, DSERR_BADFORMAT},
  };
  for (const auto& [what, bits, used_bits, extension, form, result] : cases) {
    auto format = extensible(pcm_format(2, bits, 44100));
    format.used_bits = used_bits;
    format.head.cbSize = extension;
    format.form.Data1 = form;
    Buffer buffer;
    EXPECT_EQ(create(format, 1000, buffer), result) << what;
  }
}

TEST_F(SoundBuffers, NeedACooperativeLevelOfAWindowThatExists) {
  IDirectSound* other = nullptr;
  ASSERT_EQ(DirectSoundCreate(nullptr, &other, nullptr), DS_OK);
  sound_.reset(other);
  EXPECT_TRUE(FAILED(sound_->SetCooperativeLevel(nullptr, DSSCL_NORMAL)));
  EXPECT_TRUE(FAILED(sound_->SetCooperativeLevel(reinterpret_cast<HWND>(&other), DSSCL_NORMAL)));
  EXPECT_TRUE(FAILED(sound_->SetCooperativeLevel(FindWindowA("Main", nullptr), 0)));
  Buffer buffer;
  EXPECT_EQ(create(pcm_format(1, 16, 44100), 100, buffer), DSERR_PRIOLEVELNEEDED);
}

TEST_F(SoundBuffers, AreLockedInTwoPartsAcrossTheEnd) {
  const Buffer buffer = mono_16({0, 0, 0, 0, 0});
  const Locked whole = lock(*buffer, 0, 10);
  auto* start = static_cast<std::byte*>(whole.part1);
  EXPECT_TRUE(whole.bytes1 == 10 && whole.part2 == nullptr && whole.bytes2 == 0);
  const Locked wrapped = lock(*buffer, 6, 8);
  EXPECT_TRUE(wrapped.part1 == start + 6 && wrapped.bytes1 == 4);
  EXPECT_TRUE(wrapped.part2 == start && wrapped.bytes2 == 4);
  const std::int16_t samples[] = {4, 5, 1, 2};
  std::memcpy(wrapped.part1, samples, 4);
  std::memcpy(wrapped.part2, samples + 2, 4);
  EXPECT_EQ(buffer->Unlock(wrapped.part1, 4, wrapped.part2, 4), DS_OK);
  buffer->Play(0, 0, 0);
  EXPECT_EQ(render(6), (std::vector<Frame>{{1, 1}, {2, 2}, {}, {4, 4}, {5, 5}, {}}));

  for (const auto& [offset, bytes] : {std::pair{10u, 1u}, {0u, 11u}, {0u, 0u}})
    EXPECT_EQ(lock(*buffer, offset, bytes).result, DSERR_INVALIDPARAM) << offset;
  EXPECT_EQ(buffer->Unlock(start + 10, 1, nullptr, 0), DSERR_INVALIDPARAM);
}

TEST_F(SoundBuffers, AreLostWithTheDeviceUntilRestoredAndWrittenAgain) {
  const std::vector<std::int16_t> samples = {7, 8, 9, 10};
  const Buffer playing = mono_16(samples);
  const Buffer idle = mono_16(samples);
  playing->Play(0, 0, 0);
  render(1);
  platform_lose_audio();
  EXPECT_EQ(render(4), silence(4));
  for (const Buffer* buffer : {&playing, &idle}) {
    EXPECT_EQ(status(**buffer), DSBSTATUS_BUFFERLOST);
    EXPECT_EQ((*buffer)->Play(0, 0, 0), DSERR_BUFFERLOST);
    EXPECT_EQ(lock(**buffer, 0, 4).result, DSERR_BUFFERLOST);
    IDirectSoundBuffer* duplicate = nullptr;
    EXPECT_EQ(sound_->DuplicateSoundBuffer(buffer->get(), &duplicate), DSERR_BUFFERLOST);
  }

  EXPECT_EQ(playing->Restore(), DS_OK);
  EXPECT_EQ(status(*playing), 0u);
  EXPECT_EQ(status(*idle), DSBSTATUS_BUFFERLOST) << "each is restored for itself";
  playing->Play(0, 0, 0);
  EXPECT_EQ(render(5), silence(5)) << "restored, but not yet written";
  fill(*playing, samples);
  playing->Play(0, 0, 0);
  EXPECT_EQ(playing->Restore(), DS_OK) << "nothing to do";
  EXPECT_EQ(render(5), (std::vector<Frame>{{7, 7}, {8, 8}, {9, 9}, {10, 10}, {}}));
}

TEST_F(SoundBuffers, OutliveTheSoundObjectAndALostDevice) {
  Buffer buffer = mono_16({1, 2, 3, 4});
  sound_.reset();
  EXPECT_EQ(buffer->Play(0, 0, 0), DS_OK);
  EXPECT_EQ(render(1).front().left, 1);
  platform_lose_audio();
  platform_choose_audio(PLATFORM_AUDIO_NONE);  // takes effect only when nothing uses the device
  EXPECT_EQ(buffer->Restore(), DS_OK);
  buffer.reset();
  IDirectSound* sound = nullptr;
  EXPECT_EQ(DirectSoundCreate(nullptr, &sound, nullptr), DSERR_NODRIVER);
  EXPECT_EQ(sound, nullptr);
}

}  // namespace
