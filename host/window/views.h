/// The desktop windows of a cockpit: the main view, and one for every panel that is torn off.
///
/// In the main view the panel in work keeps its size: another one that opens stands beside it where
/// that costs it nothing, as the small ones mostly do, and else takes its place, while the one before
/// waits as a tab. A switch is then as large as the window allows, and every panel is one key away.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "host/window/desk.h"
#include "host/window/view.h"

namespace host {

class Views {
 public:
  /// `scale` is the desktop's. Everything stands as it does on the desk; where that says nothing, the
  /// main view opens as large as the panels fit the screen, or at `zoom` screen pixels per panel pixel;
  /// over all of the screen where the captain's panel can have the view out of the window above it.
  Views(Cockpit& cockpit, double scale, std::optional<double> zoom, const Desk& desk);

  View& main() { return *main_; }
  const View& main() const { return *main_; }

  /// What is asked for here happens with the next settle(), and until then every view and all that it
  /// shows stays.
  ///
  /// Tears a panel off into a window of its own, or puts it back.
  void toggle_torn(std::size_t window);
  /// Shows a panel that stands in the main view: alone, or `beside` those that are shown.
  void bring(std::size_t window, bool beside);

  /// Of the views that open from now on.
  void set_scale(double scale) { scale_ = scale; }

  /// Whether a panel has a window of its own, open or not.
  bool is_torn(std::size_t window) const { return torn_off_.contains(window); }

  /// Whether a panel is open and just a tab.
  bool waits(std::size_t window) const;

  struct Settled {
    bool panels = false;        ///< other panels are shown, or elsewhere
    bool main_resized = false;  ///< the main view has another size
  };
  /// The one moment at which views come, go, and change what they show.
  Settled settle();

  /// How everything stands now, on top of what was known of closed panels.
  Desk desk() const;

  /// The view of a desktop window, or null; the panel of a torn view.
  View* find(Uint32 id);
  std::optional<std::size_t> torn_window(Uint32 id) const;

  /// Whether anything in any of them has moved with the last frame.
  bool moving() const;

  template <typename Work>
  void each(Work work) {
    work(*main_);
    for (auto& [window, view] : torn_) work(*view);
  }

 private:
  struct Wish {
    std::size_t window;
    bool beside;
  };

  void arrange_panels();
  void show_in_main(std::size_t window, bool beside);
  void close_torn(const std::vector<std::size_t>& open);
  void open_torn(std::size_t window);
  PanelSettings* settings_of(std::size_t window);
  WindowPlace first_place_of(std::size_t window) const;

  Cockpit& cockpit_;
  double scale_;
  Desk desk_;                          ///< places of windows as they were when they last closed
  std::vector<std::size_t> in_work_;   ///< of the main view
  std::vector<std::size_t> standing_;  ///< open and not torn off, since the last settle()
  std::vector<std::size_t> recent_;    ///< the one that was last brought to work comes last
  std::set<std::size_t> torn_off_;     ///< stays torn off while it is closed
  std::vector<Wish> wishes_;
  std::unique_ptr<View> main_;
  std::map<std::size_t, std::unique_ptr<View>> torn_;
  unsigned changes_;
  bool wanted_ = false;
};

}  // namespace host
