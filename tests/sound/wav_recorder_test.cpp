// The recording of a run: complete, in step with simulated time, and honest about failures.
#include "host/sound/wav_recorder.h"

#include "host/sound/wav_facts.h"
#include "tests/platform/rendered_sound.h"
#include "tests/rig/refusal.h"
#include "tests/rig/temp_folder.h"

namespace {

class Recording : public RenderedSound {
 protected:
  std::string path() const { return (folder_.path() / "run.wav").native(); }

  /// Frame `index` of the recording.
  Frame frame(std::size_t index) const {
    std::int16_t sides[2] = {};
    std::ifstream file(path(), std::ios::binary);
    file.seekg(static_cast<std::streamoff>(44 + 4 * index));
    file.read(reinterpret_cast<char*>(sides), sizeof sides);
    return {sides[0], sides[1]};
  }

  TempFolder folder_;
};

TEST_F(Recording, HasEverySoundAtItsMoment) {
  const Buffer buffer = mono_16({1000, -1000, 500});
  host::WavRecorder recorder(path());
  for (int i = 0; i < 30; ++i) recorder.advance(1.0 / 60);
  buffer->Play(0, 0, 0);
  recorder.advance(0.25);
  EXPECT_EQ(host::read_wav_facts(path()).seconds, 0.75) << "a run that is killed leaves its sound";
  recorder.finish();
  recorder.advance(1.0);  // heard, but not recorded any more
  const host::WavFacts facts = host::read_wav_facts(path());
  EXPECT_TRUE(facts.rate == 44100 && facts.channels == 2 && facts.bits == 16 && facts.seconds == 0.75);
  EXPECT_EQ(frame(22049), (Frame{}));
  EXPECT_EQ(frame(22050), (Frame{1000, 1000}));
  EXPECT_EQ(frame(22052), (Frame{500, 500}));
  EXPECT_EQ(frame(22053), (Frame{}));
}

TEST_F(Recording, DoesNotDriftFromSimulatedTime) {
  for (const double step : {1.0 / 59.94, 1.0 / 44100, 7.3}) {
    const Buffer buffer = mono_16({1, 2});
    buffer->Play(0, 0, 0);
    host::WavRecorder recorder;
    double steps = 0;
    for (; steps * step < 20; ++steps) {
      recorder.advance(step);
      ASSERT_NEAR(static_cast<double>(recorder.frames()), (steps + 1) * step * 44100, 0.51) << step;
    }
    EXPECT_EQ(status(*buffer), 0u) << "without a file too, what has been started ends";
  }
}

TEST_F(Recording, NamesTheFileThatCannotBeWritten) {
  const std::string nowhere = (folder_.path() / "missing" / "run.wav").native();
  EXPECT_EQ(refusal([&] { host::WavRecorder recorder(nowhere); }),
            "cannot write sound file '" + nowhere + "': No such file or directory");
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
