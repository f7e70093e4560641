#include <gtest/gtest.h>

#include <elf.h>

#include <iterator>

#include "host/loader/check.h"
#include "host/loader/elf_file.h"
#include "host/loader/gauge_module.h"
#include "tests/loader/resource_bytes.h"
#include "tests/rig/temp_folder.h"

namespace host {
namespace {

namespace fs = std::filesystem;

fs::path built(const std::string& name) { return fs::path(MODULE_DIR) / (name + ".GAU"); }

ByteList bytes_of(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  ByteList bytes;
  for (std::istreambuf_iterator<char> at(in), end; at != end; ++at) bytes.push_back(std::byte(*at));
  return bytes;
}

/// The sound module with something done to its bytes.
template <typename Change>
fs::path changed(Change change) {
  ByteList bytes = bytes_of(built("small_sound"));
  change(bytes);
  static const TempFolder folder;
  return folder.write("changed.GAU", text_of(bytes));
}

template <typename Field>
fs::path with_header(Field Elf64_Ehdr::*field, Field value) {
  return changed([&](ByteList& bytes) { reinterpret_cast<Elf64_Ehdr*>(bytes.data())->*field = value; });
}

std::string load_error(const fs::path& file) {
  try {
    GaugeModule module(file);
    return "";
  } catch (const LoadError& error) {
    return error.what();
  }
}

TEST(ModuleFile, SoundModuleLoads) {
  EXPECT_TRUE(check_module(built("small_sound")).empty());
  GaugeModule module(built("small_sound"));
  ASSERT_EQ(module.gauges().size(), 1u);
  EXPECT_EQ(module.find("SMALL"), module.gauges()[0]);
  EXPECT_EQ(module.find("smal"), nullptr);
  EXPECT_TRUE(module.warnings().empty());
  EXPECT_EQ(
      module.artwork_notes(),
      std::vector<std::string>{"small_sound.GAU.2x and .3x: no dense artwork; pictures are coarser "
                               "at a zoom above 1"});
  EXPECT_NE(module.handle(), 0u);
  EXPECT_EQ(module.bitmaps().find(21, BitmapUse::image)->pixels[0], 0xFF00FF00u);
  const PanelServices services{};
  module.connect(services);
}

TEST(ModuleFile, SaysWhatIsWrongWithAFile) {
  const auto text = [](ByteList& bytes) { bytes = ByteList(100, std::byte{'x'}); };
  const auto nothing = [](ByteList& bytes) { bytes.clear(); };
  const auto thirty = [](ByteList& bytes) { bytes.resize(30); };
  const auto one_less = [](ByteList& bytes) { bytes.pop_back(); };
  const auto half_a_segment = [](ByteList& bytes) {
    reinterpret_cast<Elf64_Ehdr*>(bytes.data())->e_shnum = 0;
    bytes.resize(bytes.size() / 2);
  };
  const std::string prefix = "changed.GAU: ";
  const std::string cut = prefix + "is cut short: parts that it names lie past its end";
  EXPECT_EQ(load_error(changed(text)), prefix + "is not a shared library");
  EXPECT_EQ(load_error(changed(nothing)), prefix + "is empty");
  EXPECT_EQ(load_error(changed(thirty)), cut);
  EXPECT_EQ(load_error(changed(one_less)), cut);
  EXPECT_EQ(load_error(changed(half_a_segment)), cut);
  EXPECT_EQ(load_error(with_header(&Elf64_Ehdr::e_machine, Elf64_Half{EM_S390})),
            prefix + "is a library for another kind of processor (number 22)");
  EXPECT_EQ(load_error(with_header(&Elf64_Ehdr::e_type, Elf64_Half{ET_REL})),
            prefix + "is a program or an object file, not a shared library");
  EXPECT_EQ(load_error(with_header(&Elf64_Ehdr::e_shoff, Elf64_Off{~0ull})), cut);
  EXPECT_EQ(load_error("missing.GAU"), "missing.GAU: cannot be read: No such file or directory");
  EXPECT_EQ(load_error(fs::temp_directory_path()),
            fs::temp_directory_path().filename().string() + ": cannot be read: Is a directory");
}

TEST(ModuleFile, SaysWhatIsWrongWithAModule) {
  const std::pair<std::string, std::string> cases[] = {
      {"small_bad_pointer",
       "gauge 1 (Small), element 1: the element points to memory that cannot be read"},
      {"small_no_linkage", "does not export Linkage"},
      {"small_no_symbols", "has no symbols; a module exports Linkage and ImportTable"},
      {"small_no_bitmaps", "has no section .panelres and so no bitmaps"},
  };
  for (const auto& [name, message] : cases)
    EXPECT_EQ(load_error(built(name)), name + ".GAU: " + message);
}

TEST(ModuleFile, SurplusSymbolIsOnlyAWarning) {
  const GaugeModule module(built("small_extra_symbol"));
  ASSERT_EQ(module.warnings().size(), 1u);
  EXPECT_EQ(module.warnings()[0].message,
            "small_extra_symbol.GAU: exports surplus beside Linkage and ImportTable");
}

// Whatever a cut or a flipped byte does to headers and tables, it must not be followed.
TEST(ModuleFile, NoDamageToTheHeadersCrashes) {
  for (std::size_t at = 0; at < sizeof(Elf64_Ehdr); ++at) {
    for (const int value : {0, 0x7F, 0xFF}) {
      const ByteList bytes = bytes_of(changed([&](ByteList& b) { b[at] = std::byte(value); }));
      try {
        const ElfFile elf(bytes);
        elf.section(PANEL_RESOURCE_SECTION);
      } catch (const ElfError&) {
      }
    }
  }
}

}  // namespace
}  // namespace host
