/// Which of the program's pages stands beside the panels, and what clicks on it do.
#pragma once

#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "host/inputs/cockpit_inputs.h"
#include "host/pages/checklist_progress.h"
#include "host/pages/page.h"

namespace host {

/// One page is shown at a time. The cockpit's buttons show and hide the kneeboard, the map and the
/// radio through the aircraft's key events, and the keys go the same way, so that a journal has it; the
/// GPS page also comes with the panel's GPS window.
class Pages {
 public:
  /// Throws ConfigError for lists that name what the cockpit does not have. The inputs must outlive it.
  Pages(CockpitInputs& inputs, std::vector<Checklist> lists, const std::filesystem::path& file);

  std::optional<PageKind> shown() const { return shown_; }

  /// Shows the page, or hides it if it is shown.
  void toggle(PageKind page);
  void close();

  /// Takes what the cockpit's buttons have done. Call after every frame and input.
  void follow();

  void take(const PageClick& click);

  /// Whether a person's choice has changed since the last call, so that the page is to be drawn again
  /// at once.
  bool take_changed() { return std::exchange(changed_, false); }

  /// The shown page. There is one.
  DrawnPage draw(PanelSize size, double scale) const;

  /// The control that the kneeboard points at, until its item is done.
  std::optional<Target> pointed() const;

  const PageChoices& choices() const { return choices_; }

 private:
  void show(PageKind page);
  void turn_to_the_moment();
  void act(const page_click::Close&) { close(); }
  void act(const page_click::ShowList& click);
  void act(const page_click::PointAt& click);
  void act(const page_click::ChangeRange& click);
  void act(const page_click::AskFor& click);
  void act(const page_click::GoTo& click);
  void act(const page_click::SetFailed& click);
  void act(const page_click::RepairAll&);
  void act(const page_click::SetFailureRate& click);
  std::array<bool, 4> wanted() const;

  CockpitInputs& inputs_;
  const Cockpit& cockpit_;
  std::vector<Checklist> lists_;
  PageChoices choices_;
  std::optional<PageKind> shown_;
  std::array<bool, 4> wanted_{};
  std::optional<std::size_t> proposed_;  ///< the list that fitted when the kneeboard was last opened
  bool changed_ = false;
};

}  // namespace host
