/// What hangs below a gauge's background: its chain of elements and its mouse table, laid out from the
/// rows and areas that the unit lists.
#pragma once

#include "module/gauge.h"

namespace tarnvale {

namespace detail {

template <typename Part>
inline constexpr std::size_t row_count = 1;
template <std::size_t count>
inline constexpr std::size_t row_count<Rows<count>> = count;

template <std::size_t total>
constexpr void append(Rows<total>& all, std::size_t& next, const Row& row) {
  all[next++] = row;
}
template <std::size_t total, std::size_t count>
constexpr void append(Rows<total>& all, std::size_t& next, const Rows<count>& more) {
  for (const Row& row : more) all[next++] = row;
}

}  // namespace detail

/// The same as one list: each argument a row, or rows that a function describes.
template <typename... Parts>
constexpr auto rows(const Parts&... parts) {
  Rows<(0 + ... + detail::row_count<Parts>)> all{};
  std::size_t next = 0;
  (detail::append(all, next, parts), ...);
  return all;
}

/// Rows of an instrument that fails as a whole.
template <std::size_t count>
constexpr Rows<count> all_failing_with(const failure::System& system, const Row (&list)[count]) {
  Rows<count> all{};
  for (std::size_t i = 0; i < count; ++i) all[i] = list[i].fails_with(system);
  return all;
}

/// Rows of a gauge that has no lit copy.
template <std::size_t count>
struct DayOnly {
  Rows<count> rows;
};

/// The chain below the background, and the mouse table: sizes come from the lists. Unless the rows are
/// `DayOnly`, the chain is the rows by day and after them the lit copy.
template <std::size_t parts, std::size_t clicks, std::size_t copies = 2>
struct Body {
  // An array has at least one element.
  Element chain[copies * parts + (parts == 0)]{};
  Element* links[copies * parts + (parts == 0)][2]{};
  MouseArea areas[2 + Area::most_entries * clicks + 1]{};
  const char* part_words[parts + (parts == 0)]{};
  const char* area_words[clicks + (clicks == 0)]{};

  constexpr Body(const Gauge& gauge, const Row (&rows)[parts], const Area (&area)[clicks]) {
    lay(gauge, rows);
    lay(area);
  }
  constexpr Body(const Gauge& gauge, const Rows<parts>& rows, const Area (&area)[clicks]) {
    lay(gauge, rows);
    lay(area);
  }
  constexpr Body(const Gauge& gauge, const Row (&rows)[parts]) {
    lay(gauge, rows);
    lay(std::span<const Area>{});
  }
  constexpr Body(const Gauge& gauge, const Rows<parts>& rows) {
    lay(gauge, rows);
    lay(std::span<const Area>{});
  }
  constexpr Body(const Gauge& gauge, const DayOnly<parts>& day) {
    lay(gauge, day.rows);
    lay(std::span<const Area>{});
  }
  constexpr Body(const Gauge&, const Area (&area)[clicks]) { lay(area); }

 private:
  constexpr void lay(const Gauge& gauge, std::span<const Row> rows) {
    constexpr std::size_t length = copies * parts;
    for (std::size_t i = 0; i < parts; ++i) {
      part_words[i] = rows[i].words;
      chain[i] = rows[i].day;
      if (copies == 2) chain[parts + i] = rows[i].lit;
    }
    for (std::size_t i = 0; i < length; ++i) chain[i].gauge = &gauge.header;
    for (std::size_t i = 0; i + 1 < length; ++i) {
      links[i][0] = &chain[i + 1];
      chain[i].next = links[i];
    }
  }

  constexpr void lay(std::span<const Area> area) {
    MouseArea* to = areas;
    *to++ = detail::entry(MOUSE_GROUP);
    for (std::size_t i = 0; i < area.size(); ++i) {
      area_words[i] = area[i].words;
      for (std::size_t k = 0; k < area[i].count; ++k) *to++ = area[i].entries[k];
    }
    *to++ = detail::entry(MOUSE_GROUP_END);
    *to = detail::entry(MOUSE_END);
  }
};

template <std::size_t parts, std::size_t clicks>
Body(const Gauge&, const Row (&)[parts], const Area (&)[clicks]) -> Body<parts, clicks>;
template <std::size_t parts, std::size_t clicks>
Body(const Gauge&, const Rows<parts>&, const Area (&)[clicks]) -> Body<parts, clicks>;
template <std::size_t parts>
Body(const Gauge&, const Row (&)[parts]) -> Body<parts, 0>;
template <std::size_t parts>
Body(const Gauge&, const Rows<parts>&) -> Body<parts, 0>;
template <std::size_t parts>
Body(const Gauge&, const DayOnly<parts>&) -> Body<parts, 0, 1>;
template <std::size_t clicks>
Body(const Gauge&, const Area (&)[clicks]) -> Body<0, clicks, 1>;

}  // namespace tarnvale
