// Files are read within bounds and written as a whole or not at all.
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "host/files/output.h"
#include "host/files/read_file.h"
#include "host/files/shortened.h"
#include "tests/rig/refusal.h"
#include "tests/rig/temp_folder.h"

namespace {

using namespace host;
namespace fs = std::filesystem;

std::size_t files_in(const TempFolder& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.path()), {}));
}

TEST(ReadFile, TakesRegularFilesUpToTheLimit) {
  const TempFolder folder;
  EXPECT_EQ(read_file(folder.write("full", std::string(mebibyte, 'x')), mebibyte).size(), mebibyte);
  folder.write("larger", std::string(mebibyte + 1, 'x'));
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", folder / "zero");
  const std::pair<const char*, const char*> cases[] = {
      {"larger", ": is larger than 1 MiB"},     {"pipe", ": is no regular file"},
      {"zero", ": is no regular file"},         {"gone", ": cannot be read: No such file or directory"},
      {"", ": cannot be read: Is a directory"},
  };
  for (const auto& [name, fault] : cases) {
    EXPECT_EQ(refusal<FileFault>([&] { read_file(folder / name, mebibyte); }), folder / name + fault);
  }
}

TEST(WriteWholeFile, PutsTheNewOneInTheOldOnesPlace) {
  const TempFolder folder;
  const std::string file = folder.write("picture", "old");
  fs::create_symlink(file, folder / "link");
  write_whole_file(folder / "link", "new");
  EXPECT_EQ(read_file(file, mebibyte), "new");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(files_in(folder), 2u);
}

// No room for more than this stands for a full disk.
TEST(WriteWholeFile, LeavesTheOldOneWhereTheDiskIsFull) {
  const TempFolder folder;
  const std::string file = folder.write("picture", "old");
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const auto signal = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit full{1000, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &full);
  const std::string said = refusal([&] { write_whole_file(file, std::string(5000, 'x')); });
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, signal);
  EXPECT_EQ(said, file + ": cannot be written: File too large");
  EXPECT_EQ(read_file(file, mebibyte), "old");
  EXPECT_EQ(files_in(folder), 1u) << "nothing is left lying about";
}

TEST(CheckOutputs, RefusesOneFileForTwoThings) {
  const TempFolder folder;
  const std::string flow = folder.write("flow.lua", "");
  fs::create_symlink(flow, folder / "link");
  const auto refused = [&](const fs::path& wav, const fs::path& journal) {
    return refusal([&] {
      check_outputs({{"--wav", wav}, {"--journal", journal}}, {{"the flow", flow}});
    });
  };
  EXPECT_EQ(refused(folder / "new.wav", ""), "");
  EXPECT_EQ(refused("/dev/null", "/dev/null"), "");
  EXPECT_EQ(refused(folder / "link", ""), folder / "link: --wav would write over the flow");
  EXPECT_EQ(refused(folder / "a", folder / "./a"), folder / "./a: --journal would write over --wav");
}

TEST(Shortened, KeepsBeginningEndAndWholeLetters) {
  EXPECT_EQ(shortened("as it is"), "as it is");
  EXPECT_EQ(shortened("two\nlines\x1B[2J"), "two?lines?[2J");
  EXPECT_EQ(shortened("abcdefghijklmnopqrstuvwxyz", 12), "abcdefgh...xyz");
  EXPECT_EQ(shortened("\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4", 10), "\u00E4\u00E4\u00E4...\u00E4");
}

}  // namespace
