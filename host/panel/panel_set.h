/// Which panel windows are open, and which face each one shows.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "host/panel/panel_config.h"

namespace host {

/// The main panels have a face for day and one for night; the other windows stay on `day`.
enum class Face { day, night };

/// The ident of the panel above which the view out of the window stands.
inline constexpr std::uint32_t captains_panel = 500;

/// The windows of one panel by their idents. An ident that no window has does nothing.
///
/// A day or night ident stands for its window on that face: opening it shows the window with the
/// face, closing it hides the window only while it shows the face. So a switch that opens the night
/// version and closes the day version, in either order, swaps the face and nothing else.
class PanelSet {
 public:
  explicit PanelSet(const PanelConfig& config);

  /// Shows the start page and no other window that can be opened. False where the panel has none.
  bool begin_with_start_page();

  /// The start page gives way to any other window.
  void open(std::uint32_t ident);
  void close(std::uint32_t ident);
  void toggle(std::uint32_t ident);
  bool shows(std::uint32_t ident) const;

  /// The window of an ident as its place in PanelConfig::windows.
  std::optional<std::size_t> find(std::uint32_t ident) const;

  bool is_open(std::size_t window) const { return states_[window].open; }
  Face face(std::size_t window) const { return states_[window].face; }

  /// Rises whenever a window opens, closes or turns its face.
  unsigned changes() const { return changes_; }

 private:
  struct State {
    bool open = false;
    Face face = Face::day;
    bool operator==(const State&) const = default;
  };
  struct Entry {
    std::uint32_t ident;
    std::size_t window;
    std::optional<Face> face;
  };

  const Entry* entry(std::uint32_t ident) const;
  bool shows(const Entry& entry) const;
  void set(std::size_t window, State state);

  std::vector<Entry> entries_;
  std::optional<std::size_t> start_page_;
  std::vector<State> states_;
  unsigned changes_ = 0;
};

}  // namespace host
