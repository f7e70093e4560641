// Sounds are known again by their samples.
#include "host/sound/sound_book.h"

#include "tests/rig/temp_folder.h"

namespace {

TEST(SoundBook, NamesTheFileThatHasTheSamples) {
  const TempFolder folder;
  folder.write("Air/Tarv_click.wav",
               "head"
               "click"
               "tail");
  folder.write("Air/Crew/Tarv_v1.wav",
               "head"
               "vee one");
  folder.write("Air/notes.txt", "silence");
  const host::SoundBook book(folder.path()), none(folder / "nowhere");
  const auto name = [](const host::SoundBook& in, std::string_view samples) {
    return in.name_of(std::as_bytes(std::span(samples)));
  };
  EXPECT_EQ(name(book, "click"), "click");
  EXPECT_EQ(name(book, "vee one"), "v1");
  EXPECT_EQ(name(book, "silence"), "?");
  EXPECT_EQ(name(none, "click"), "?");
}

}  // namespace
