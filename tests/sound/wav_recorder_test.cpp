// The recording of a run: complete, in step with simulated time, and honest about failures.
#include "host/sound/wav_recorder.h"

#include <cmath>
#include <sstream>

#include "tests/platform/rendered_sound.h"
#include "tests/rig/temp_folder.h"

namespace {

class Recording : public RenderedSound {
 protected:
  std::string path() const { return (folder_.path() / "run.wav").native(); }

  std::string recorded() const {
    std::ostringstream bytes;
    bytes << std::ifstream(path(), std::ios::binary).rdbuf();
    return bytes.str();
  }

  static std::uint32_t word(const std::string& bytes, std::size_t at) {
    std::uint32_t value = 0;
    std::memcpy(&value, bytes.data() + at, sizeof value);
    return value;
  }

  /// Frame `index` of the recording.
  Frame frame(std::size_t index) const {
    std::int16_t sides[2] = {};
    std::memcpy(sides, recorded().data() + 44 + 4 * index, sizeof sides);
    return {sides[0], sides[1]};
  }

  TempFolder folder_;
};

TEST_F(Recording, IsAWavFileOfTheSimulatedLength) {
  host::WavRecorder recorder(path());
  for (int i = 0; i < 90; ++i) recorder.advance(1.0 / 60);
  recorder.finish();
  recorder.advance(1.0);  // heard, but not recorded any more
  recorder.finish();
  const std::string bytes = recorded();
  const std::uint32_t data = 66150 * 4;
  ASSERT_EQ(bytes.size(), 44 + data);
  EXPECT_EQ(bytes.substr(0, 4) + bytes.substr(8, 8) + bytes.substr(36, 4), "RIFFWAVEfmt data");
  EXPECT_EQ(word(bytes, 4), bytes.size() - 8);
  EXPECT_EQ(word(bytes, 16), 16u);
  EXPECT_EQ(word(bytes, 20), 0x00020001u) << "PCM, two channels";
  EXPECT_EQ(word(bytes, 24), 44100u);
  EXPECT_EQ(word(bytes, 28), 176400u);
  EXPECT_EQ(word(bytes, 32), 0x00100004u) << "four bytes a frame, 16 bit";
  EXPECT_EQ(word(bytes, 40), data);
}

TEST_F(Recording, HasEverySoundAtItsMoment) {
  const Buffer buffer = mono_16({1000, -1000, 500});
  {
    host::WavRecorder recorder(path());
    recorder.advance(0.5);
    buffer->Play(0, 0, 0);
    recorder.advance(0.25);
  }  // stopped early: the file is complete all the same
  EXPECT_EQ(word(recorded(), 40), 33075u * 4);
  EXPECT_EQ(frame(22049), (Frame{}));
  EXPECT_EQ(frame(22050), (Frame{1000, 1000}));
  EXPECT_EQ(frame(22052), (Frame{500, 500}));
  EXPECT_EQ(frame(22053), (Frame{}));
}

TEST_F(Recording, DoesNotDriftFromSimulatedTime) {
  for (const double step : {1.0 / 18, 1.0 / 59.94, 0.001, 1.0 / 44100, 7.3}) {
    host::WavRecorder recorder;
    double steps = 0;
    for (; steps * step < 20; ++steps) {
      recorder.advance(step);
      ASSERT_NEAR(static_cast<double>(recorder.frames()), (steps + 1) * step * 44100, 0.51) << step;
    }
  }
}

TEST_F(Recording, LetsSoundsEndWithoutAFile) {
  const Buffer buffer = mono_16(std::vector<std::int16_t>(441, 1));
  host::WavRecorder recorder;
  buffer->Play(0, 0, 0);
  recorder.advance(0.02);
  EXPECT_EQ(status(*buffer), 0u);
}

TEST_F(Recording, NamesTheFileThatCannotBeWritten) {
  const std::string nowhere = (folder_.path() / "missing" / "run.wav").native();
  try {
    host::WavRecorder recorder(nowhere);
    FAIL() << "no error";
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(error.what(), "cannot write sound file '" + nowhere + "': No such file or directory");
  }
}

TEST_F(Recording, TellsOfAFullDisk) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "this system has no full device";
  EXPECT_THROW(
      {
        host::WavRecorder recorder("/dev/full");
        recorder.advance(10);
        recorder.finish();
      },
      std::runtime_error);
}

}  // namespace
