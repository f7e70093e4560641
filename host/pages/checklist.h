/// The checklists of the kneeboard: a text file beside the program.
///
///     [Before start]                         a list
///     when on_ground = 1                     proposed while this holds; the last list of which it does
///
///     # what | how it should be | where it is worked | when it is done
///     Battery        | ON  | Masterbat battery_switch       | Masterbat battery_lamp = 1
///     Parking brake  | SET | Thleft parking_brake_lever     | parking_brake > 0
///     Duct pressure  | GREEN | Grdpsi                       | Bleedair duct_pressure_lamp = 1
///
/// An item is worked at a click area of a gauge, or looked at on a gauge.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "host/panel/condition.h"

namespace host {

struct ChecklistItem {
  std::string what, wanted;
  std::string gauge;
  std::string control;  ///< a click area of the gauge; empty: all of it
  Condition done;
  int line = 0;
};

struct Checklist {
  std::string title;
  Condition when;  ///< empty: never proposed
  std::vector<ChecklistItem> items;
  int line = 0;
};

/// Lists and items that a kneeboard has room for.
inline constexpr std::size_t most_checklists = 12, most_items = 26;

/// Throws ConfigError, which names the line. `file` is named there.
std::vector<Checklist> parse_checklists(std::string_view text, const std::filesystem::path& file);
std::vector<Checklist> read_checklists(const std::filesystem::path& file);

}  // namespace host
