// The library's file as Windows itself sees it: what it exports and carries, and a gauge at work.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "tests/windows/library.h"

namespace {

const Library& library() {
  static const Library opened(COCKPIT_DIR "/Tarnvale.GAU");
  return opened;
}

HMODULE module_handle() { return reinterpret_cast<HMODULE>(library().handle); }

TEST(Library, ExportsTwoRecordsWithTheirOrdinals) {
  const auto by_ordinal = [](WORD ordinal) -> const void* {
    return reinterpret_cast<const void*>(GetProcAddress(module_handle(), MAKEINTRESOURCEA(ordinal)));
  };
  EXPECT_EQ(by_ordinal(1), library().imports);
  EXPECT_EQ(by_ordinal(2), library().linkage);
  EXPECT_EQ(by_ordinal(3), nullptr);
  EXPECT_EQ(library().linkage->module_id, LINKAGE_MODULE_ID);
  EXPECT_EQ(library().linkage->version, LINKAGE_VERSION);
  EXPECT_EQ(library().linkage->gauges[LINKAGE_GAUGE_COUNT], nullptr);
  EXPECT_STREQ(library().linkage->gauges[LINKAGE_GAUGE_COUNT - 1]->name, "Vcbrake");
}

// ---- Resources ----------------------------------------------------------------------------------

/// A name as Windows takes it: a number or a text.
const char* key_of(const std::string& name) {
  return name.front() == '#' ? MAKEINTRESOURCEA(std::stoi(name.substr(1))) : name.c_str();
}

std::string name_of(const char* key) {
  return IS_INTRESOURCE(key) ? "#" + std::to_string(reinterpret_cast<ULONG_PTR>(key)) : key;
}

BOOL CALLBACK add_name(HMODULE, const char*, char* key, LONG_PTR names) {
  reinterpret_cast<std::set<std::string>*>(names)->insert(name_of(key));
  return TRUE;
}

BOOL CALLBACK add_type(HMODULE, char* key, LONG_PTR names) {
  return add_name(nullptr, nullptr, key, names);
}

/// The bitmaps as the build has drawn them for every system.
std::map<std::string, std::string> drawn_bitmaps() {
  std::ifstream file(PANELRES_FILE, std::ios::binary);
  const std::string bytes(std::istreambuf_iterator<char>(file), {});
  PanelResourceHeader header{};
  std::memcpy(&header, bytes.data(), std::min(bytes.size(), sizeof header));
  std::map<std::string, std::string> bitmaps;
  for (u32 i = 0; i < header.count; ++i) {
    PanelResourceEntry entry;
    std::memcpy(&entry, bytes.data() + sizeof header + i * sizeof entry, sizeof entry);
    const bool named = entry.id == PANEL_RESOURCE_NAMED;
    bitmaps[named ? entry.name : name_of(MAKEINTRESOURCEA(entry.id))] =
        bytes.substr(entry.offset, entry.size);
  }
  return bitmaps;
}

std::string resource_bytes(const std::string& name) {
  const HRSRC found = FindResourceA(module_handle(), key_of(name), RT_BITMAP);
  if (found == nullptr) return "";
  const void* start = LockResource(LoadResource(module_handle(), found));
  return {static_cast<const char*>(start), SizeofResource(module_handle(), found)};
}

TEST(Library, CarriesExactlyTheBitmapsThatWereDrawn) {
  std::set<std::string> types, names, drawn;
  EnumResourceTypesA(module_handle(), add_type, reinterpret_cast<LONG_PTR>(&types));
  EXPECT_EQ(types, std::set{name_of(RT_BITMAP)});
  EnumResourceNamesA(module_handle(), RT_BITMAP, add_name, reinterpret_cast<LONG_PTR>(&names));
  for (const auto& [name, bytes] : drawn_bitmaps()) {
    drawn.insert(name);
    EXPECT_TRUE(resource_bytes(name) == bytes) << name;
  }
  EXPECT_EQ(names, drawn);
  EXPECT_GT(drawn.size(), 700u);
}

TEST(Library, WindowsMakesAPictureOfEveryBitmap) {
  for (const auto& [name, bytes] : drawn_bitmaps()) {
    BITMAPINFOHEADER header;
    std::memcpy(&header, bytes.data(), sizeof header);
    const HBITMAP picture = LoadBitmapA(module_handle(), key_of(name));
    BITMAP loaded{};
    GetObjectA(picture, sizeof loaded, &loaded);
    EXPECT_EQ(loaded.bmWidth, header.biWidth) << name;
    EXPECT_EQ(loaded.bmHeight, header.biHeight) << name;
    DeleteObject(picture);
  }
}

// ---- A gauge at work ----------------------------------------------------------------------------

struct Host {
  f64 battery = 0;
  std::vector<u32> events;
} host;

constexpr u32 battery_token = 364, battery_event = 0x10346;

void ignore(const Element*) {}
void ignore_argument(const Element*, uintptr_t) {}
void ignore_window(u32) {}
void look_up(TokenVariable* variable) {
  variable->value = variable->token == battery_token ? host.battery : 0;
}
void take_event(u32 event, u32) {
  host.events.push_back(event);
  if (event == battery_event) host.battery = 1 - host.battery;
}

constexpr PanelServices services{ignore,          ignore_argument, ignore,        ignore,
                                 ignore_argument, ignore,          ignore,        ignore_window,
                                 take_event,      look_up,         ignore_window, ignore_window};

/// The image that the battery switch, the panel's first part, shows after a frame.
f64 switch_image(const GaugeHeader& panel) {
  panel.service(&panel, SERVICE_TICK, 0);
  Element* battery_switch = panel.element_list[0]->next[0];
  const f64 image = battery_switch->icon.value(battery_switch);
  panel.service(&panel, SERVICE_AFTER_VALUES, 0);
  return image;
}

TEST(Library, TheBatterySwitchAsksTheHostAndShowsItsAnswer) {
  library().imports->entries[0].pointer = &services;
  const GaugeHeader& panel = library().gauge("Masterbat");
  EXPECT_EQ(switch_image(panel), 0);
  EXPECT_EQ(click_areas_of(panel).front()->routine({1, 1}, MOUSE_LEFT), 0);
  EXPECT_EQ(host.events, (std::vector<u32>{battery_event, 0x102C2, 0x1033B, 0x1033C, 0x1033D}));
  EXPECT_EQ(switch_image(panel), 1);
}

}  // namespace
