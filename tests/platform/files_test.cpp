// Paths and mapped files: what the module opens by backslashed names in whatever letter case.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <windows.h>

#include <array>

#include "tests/rig/temp_folder.h"

namespace {

HANDLE open_file(const char* path) {
  return CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                     nullptr);
}

HANDLE map_file(HANDLE file) { return CreateFileMappingA(file, nullptr, PAGE_READONLY, 0, 0, nullptr); }

/// The whole contents by way of a mapping; "-" if there is none.
std::string contents(const char* path) {
  const HANDLE file = open_file(path);
  if (file == INVALID_HANDLE_VALUE) return "-";
  const DWORD size = GetFileSize(file, nullptr);
  const HANDLE mapping = map_file(file);
  EXPECT_TRUE(CloseHandle(file));
  const void* view = MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, 0);
  EXPECT_TRUE(CloseHandle(mapping));
  const std::string read(static_cast<const char*>(view), size);
  EXPECT_TRUE(UnmapViewOfFile(view));
  return read;
}

std::string current_directory() {
  std::array<char, 4096> path{};
  EXPECT_GT(GetCurrentDirectoryA(1, path.data()), 1u) << "the size it needs";
  EXPECT_LT(GetCurrentDirectoryA(path.size(), path.data()), path.size());
  return path.data();
}

class Files : public testing::Test {
 protected:
  void SetUp() override {
    before_ = current_directory();
    folder_.write("Sound/Ground/Bell.wav", "bell");
    folder_.write("click.wav", "lower");
    folder_.write("Click.wav", "Upper");
    folder_.write("empty.wav", "");
    ASSERT_TRUE(SetCurrentDirectoryA(folder_.path().c_str()));
  }
  void TearDown() override { SetCurrentDirectoryA(before_.c_str()); }

  TempFolder folder_;
  std::string before_;
};

TEST_F(Files, PathsAreFoundWhateverTheirSlashesAndCase) {
  const std::pair<const char*, const char*> cases[] = {
      {R"(Sound\Ground\Bell.wav)", "bell"},
      {R"(.\Sound\\GROUND\..\ground/bELL.wav)", "bell"},
      {"click.wav", "lower"},  // the exact name before any other
      {"Click.wav", "Upper"},
      {"CLICK.WAV", "Upper"},  // of several others always the same
      {R"(Sound\Ground\Bells.wav)", "-"},
      {R"(Sound\Ground)", "-"},  // a folder is no file
      {R"(click.wav\Bell.wav)", "-"},
      {"", "-"},
  };
  for (const auto& [path, expected] : cases) EXPECT_EQ(contents(path), expected) << path;
  EXPECT_EQ(contents((folder_ / R"(SOUND\ground\BELL.wav)").c_str()), "bell");
}

TEST_F(Files, TheCurrentDirectoryIsNotThePosixOne) {
  const auto posix = std::filesystem::current_path();
  EXPECT_TRUE(SetCurrentDirectoryA(R"(sound\.)"));
  EXPECT_EQ(contents(R"(Ground\Bell.wav)"), "bell");
  EXPECT_FALSE(SetCurrentDirectoryA(R"(Ground\Bell.wav)"));
  EXPECT_EQ(contents(R"(Ground\Bell.wav)"), "bell") << "a refused directory changes nothing";
  EXPECT_EQ(std::filesystem::current_path(), posix);
}

TEST_F(Files, OnlyOrdinaryFilesAreOpenedAndOnlyForReading) {
  EXPECT_EQ(CreateFileA("click.wav", 0x40000000, 0, nullptr, OPEN_EXISTING, 0, nullptr),
            INVALID_HANDLE_VALUE);
  EXPECT_EQ(CreateFileA("new.wav", GENERIC_READ, 0, nullptr, 1, 0, nullptr), INVALID_HANDLE_VALUE);
  ASSERT_EQ(mkfifo((folder_.path() / "pipe.wav").c_str(), 0600), 0);
  EXPECT_EQ(open_file("pipe.wav"), INVALID_HANDLE_VALUE) << "and nobody waits for its other end";
  EXPECT_EQ(open_file(nullptr), INVALID_HANDLE_VALUE);
}

TEST_F(Files, HandlesAreGoodForOneCloseAndOneKind) {
  const HANDLE file = open_file("click.wav"), mapping = map_file(file), empty = open_file("empty.wav");
  EXPECT_EQ(MapViewOfFile(file, FILE_MAP_READ, 0, 0, 0), nullptr);
  EXPECT_EQ(GetFileSize(mapping, nullptr), INVALID_FILE_SIZE);
  EXPECT_EQ(GetFileSize(empty, nullptr), 0u);
  EXPECT_EQ(map_file(empty), nullptr) << "there is nothing to map";
  for (const HANDLE handle : {file, mapping, empty}) {
    EXPECT_TRUE(CloseHandle(handle));
    EXPECT_FALSE(CloseHandle(handle));
  }
  EXPECT_EQ(map_file(file), nullptr);
  EXPECT_FALSE(UnmapViewOfFile(mapping));
}

}  // namespace
