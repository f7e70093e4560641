#include <gtest/gtest.h>

#include <elf.h>
#include <sys/stat.h>

#include <cstring>
#include <iterator>
#include <set>
#include <span>

#include "host/loader/check.h"
#include "host/loader/elf_file.h"
#include "host/loader/gauge_module.h"
#include "tests/loader/resource_bytes.h"
#include "tests/rig/refusal.h"
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

/// Messages begin with the whole path; its folder is left out here.
std::string without_folder(const fs::path& file, const std::string& message) {
  EXPECT_TRUE(message.starts_with(file.string())) << message;
  return file.filename().string() + message.substr(std::min(message.size(), file.string().size()));
}

std::string load_error(const fs::path& file) {
  return without_folder(file, refusal<LoadError>([&] { GaugeModule module(file); }));
}

TEST(ModuleFile, SoundModuleLoads) {
  EXPECT_TRUE(check_module(built("small_sound")).empty());
  GaugeModule module(built("small_sound"));
  ASSERT_EQ(module.gauges().size(), 1u);
  EXPECT_EQ(module.find("SMALL"), module.gauges()[0]);
  EXPECT_EQ(module.find("smal"), nullptr);
  EXPECT_TRUE(module.warnings().empty());
  EXPECT_EQ(module.artwork_notes(),
            std::vector<std::string>{
                built("small_sound").string() +
                ".2x and .3x: no dense artwork; pictures are coarser at a zoom above 1"});
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
      {"small_no_background",
       "gauge 1 (Small): has no background: bitmap 10 is damaged: 7 bits a pixel"},
      {"small_no_bitmaps", "has no section .panelres and so no bitmaps"},
  };
  for (const auto& [name, message] : cases)
    EXPECT_EQ(load_error(built(name)), name + ".GAU: " + message);
}

TEST(ModuleFile, SurplusSymbolIsOnlyAWarning) {
  const GaugeModule module(built("small_extra_symbol"));
  ASSERT_EQ(module.warnings().size(), 1u);
  EXPECT_EQ(without_folder(module.file(), module.warnings()[0].message),
            "small_extra_symbol.GAU: exports surplus beside Linkage and ImportTable");
}

/// The file's bytes from a section's begin to its end.
std::span<std::byte> section_of(ByteList& bytes, const std::string& name) {
  const auto section = ElfFile(bytes).section(name);
  if (!section) return {};
  return std::span(bytes).subspan(static_cast<std::size_t>(section->data() - bytes.data()),
                                  section->size());
}

// The system's loader believes these tables, and is ended by them or never ends. Each word of each table is
// damaged in turn; what is left over is whether this test is still there to say so.
TEST(ModuleFile, NoDamageToTheDynamicTablesCrashes) {
  std::set<std::string> said;
  for (const std::string table : {".dynamic", ".gnu.hash", ".dynsym", ".rela.dyn", ".dynstr"}) {
    ByteList sound = bytes_of(built("small_sound"));
    const std::size_t words = section_of(sound, table).size() / 8;
    ASSERT_GT(words, 0u) << table;
    for (std::size_t word = 0; word < words; word += 1 + words / 64) {
      const fs::path file = changed(
          [&](ByteList& bytes) { std::memset(section_of(bytes, table).data() + word * 8, 0x5F, 8); });
      for (const Finding& finding : check_module(file))
        said.insert(without_folder(file, finding.message));
    }
  }
  for (const char* part : {"symbol table lies", "table of names lies", "relocation table lies",
                           "relocations reach", "hash table lies"})
    EXPECT_TRUE(std::ranges::any_of(said, [&](auto& text) { return text.find(part) != text.npos; }))
        << part;
  EXPECT_TRUE(said.contains("changed.GAU: cannot be loaded: the system's loader breaks down over it"));
}

TEST(ModuleFile, WaitsForNoPipeAndReadsNoDevice) {
  const TempFolder folder;
  ASSERT_EQ(mkfifo((folder / "pipe.GAU").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", folder / "zero.GAU");
  std::ofstream(folder / "huge.GAU");
  fs::resize_file(folder / "huge.GAU", std::uintmax_t{1} << 40);
  EXPECT_EQ(load_error(folder / "pipe.GAU"), "pipe.GAU: is no regular file");
  EXPECT_EQ(load_error(folder / "zero.GAU"), "zero.GAU: is no regular file");
  EXPECT_EQ(load_error(folder / "huge.GAU"), "huge.GAU: is larger than 512 MiB");
}

}  // namespace
}  // namespace host
