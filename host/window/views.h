/// The desktop windows of a cockpit: the main view, and one for every panel that is torn off.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "host/window/view.h"

namespace host {

class Views {
 public:
  /// `scale` is the desktop's. The main view opens as large as the panels fit the screen, or at
  /// `zoom` screen pixels per panel pixel; over all of the screen where the captain's
  /// panel can have the view `outside` above it.
  Views(Cockpit& cockpit, double scale, std::optional<double> zoom, bool outside);

  View& main() { return *main_; }
  const View& main() const { return *main_; }

  /// Shows and hides views as the cockpit's windows have opened and closed. Returns whether any did.
  bool follow_cockpit();

  /// Tears a panel off into a window of its own, or puts it back.
  void toggle_torn(std::size_t window);

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
  void arrange_panels();

  Cockpit& cockpit_;
  double scale_;
  std::unique_ptr<View> main_;
  std::map<std::size_t, std::unique_ptr<View>> torn_;
  std::set<std::size_t> torn_off_;  ///< stays torn off while it is closed
  unsigned changes_;
};

}  // namespace host
