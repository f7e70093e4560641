/// The program's own pages, which stand beside the panels: what each shows, and what a click on it asks
/// for.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "host/pages/checklist.h"
#include "host/pages/radio_talk.h"
#include "host/panel/cockpit.h"
#include "host/sketch/sketch.h"

namespace host {

enum class PageKind { kneeboard, map, radio, gps, failures };

struct PageRow {
  PageKind kind;
  std::string_view name;   ///< for commands and flows: "kneeboard", "map", "atc", "gps", "failures"
  std::string_view title;  ///< "Kneeboard"
  std::string_view key;    ///< that shows and hides it: "K"
};

const std::vector<PageRow>& page_table();

/// Null if there is none of that name.
const PageRow* find_page(std::string_view name);

/// What a click asks for.
namespace page_click {
struct Close {};
struct ShowList {
  std::size_t list;
};
/// To the control, or to the whole gauge where there is none.
struct PointAt {
  std::string gauge, control;
  Condition until;  ///< the pointing ends when it holds; empty: it stays
  bool operator==(const PointAt& other) const {
    return gauge == other.gauge && control == other.control;
  }
};
struct ChangeRange {
  int steps;  ///< positive: closer
};
struct AskFor {
  Request request;
};
struct GoTo {
  std::size_t place;  ///< of places_to_go()
};
struct SetFailed {
  std::uint32_t key;
  bool failed;
};
struct RepairAll {};
struct SetFailureRate {
  double per_hour;
};
}  // namespace page_click

using PageClick =
    std::variant<page_click::Close, page_click::ShowList, page_click::PointAt, page_click::ChangeRange,
                 page_click::AskFor, page_click::GoTo, page_click::SetFailed, page_click::RepairAll,
                 page_click::SetFailureRate>;

/// A part of a page that can be clicked, in pixels of its picture.
struct PageSpot {
  Rect place;
  PageClick click;
};

struct DrawnPage {
  Overlay picture;
  std::vector<PageSpot> spots;

  /// Null where a click does nothing. The later spots lie over the earlier ones.
  const PageSpot* at(int x, int y) const;
};

/// What a person has chosen on the pages. None of it changes the flight.
struct PageChoices {
  std::optional<std::size_t> list;  ///< of the kneeboard; empty: the one that fits the moment
  std::optional<page_click::PointAt> pointing;
  int range = 2;  ///< of the map, in map_ranges_nm
  std::size_t destination = 0;
  std::deque<std::string> talk;  ///< calls and answers, the oldest first
};

/// How far a map reaches from the aircraft to its edges, miles.
inline constexpr double map_ranges_nm[] = {2, 5, 10, 20, 40, 80};

/// What a page is drawn from.
struct PageView {
  const Cockpit& cockpit;
  const std::vector<Checklist>& lists;
  const PageChoices& choices;
  PanelSize size;  ///< pixels that the page fills
  double scale;    ///< of its letters, which shrink where the page would not fit
};

/// The pixels that a page likes to have at a scale of 1.
inline constexpr PanelSize page_size{420, 760};

DrawnPage draw_page(PageKind kind, const PageView& view);

DrawnPage draw_kneeboard(const PageView& view);
DrawnPage draw_map(const PageView& view);
DrawnPage draw_radio_page(const PageView& view);
DrawnPage draw_gps(const PageView& view);
DrawnPage draw_failures(const PageView& view);

/// The page of that name as a picture. Throws std::runtime_error if there is none.
Canvas picture_of_page(std::string_view name, const Cockpit& cockpit,
                       const std::vector<Checklist>& lists, double zoom);

}  // namespace host
