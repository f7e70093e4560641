#include "host/pages/pages.h"

#include <algorithm>
#include <utility>

#include "host/pages/places_to_go.h"

namespace host {
namespace {

constexpr std::uint32_t gps_window = 507;
constexpr std::size_t most_talk = 8;

// The pages that the cockpit opens and closes, in the order of Pages::wanted().
constexpr std::array cockpits_pages{PageKind::kneeboard, PageKind::map, PageKind::radio, PageKind::gps};

// The key event by which a cockpit's button toggles the page; empty for pages that have none.
std::optional<std::uint32_t> event_of(PageKind page) {
  switch (page) {
    case PageKind::kneeboard: return event::kneeboard_toggle;
    case PageKind::map: return event::map_window_toggle;
    case PageKind::radio: return event::atc_window_toggle;
    case PageKind::gps:
    case PageKind::failures: break;
  }
  return std::nullopt;
}

}  // namespace

Pages::Pages(CockpitInputs& inputs, std::vector<Checklist> lists, const std::filesystem::path& file)
    : inputs_(inputs), cockpit_(inputs.cockpit()), lists_(fitted_to(cockpit_, std::move(lists))) {
  if (!cockpit_.names().missing.empty()) lists_.clear();  // nothing could be pointed at
  if (const std::string fault = fault_for(lists_, cockpit_); !fault.empty())
    throw ConfigError(file.string() + ", " + fault);
}

std::array<bool, 4> Pages::wanted() const {
  const simulation::ProgramWindows& windows = cockpit_.aircraft().program_windows();
  return {windows.kneeboard_shown, windows.map_shown, windows.atc_shown,
          cockpit_.panels().shows(gps_window)};
}

void Pages::toggle(PageKind page) {
  if (shown_ == page) return close();
  const auto event = event_of(page);
  if (!event) return show(page);
  inputs_.take(input::KeyEvent{*event, 0});
  follow();
}

// The button in the cockpit is to show it again with its next press.
void Pages::close() {
  if (!shown_) return;
  const PageKind page = *std::exchange(shown_, std::nullopt);
  choices_.pointing.reset();
  const std::array<bool, 4> open = wanted();
  for (std::size_t i = 0; i < open.size(); ++i)
    if (const auto event = event_of(page); event && open[i] && cockpits_pages[i] == page)
      inputs_.take(input::KeyEvent{*event, 0});
  wanted_ = wanted();
  changed_ = true;
}

void Pages::show(PageKind page) {
  close();
  shown_ = page;
  changed_ = true;
  if (page == PageKind::kneeboard) turn_to_the_moment();
}

// The list in hand stays, until the flight has come to another one.
void Pages::turn_to_the_moment() {
  const std::size_t fitting = proposed_list(lists_, cockpit_);
  if (std::exchange(proposed_, fitting) != fitting) choices_.list = fitting;
}

void Pages::follow() {
  const std::array<bool, 4> now = wanted(), before = std::exchange(wanted_, now);
  for (std::size_t i = 0; i < now.size(); ++i) {
    if (!now[i] && before[i] && shown_ == cockpits_pages[i]) {
      shown_.reset();
      choices_.pointing.reset();
      changed_ = true;
    }
    if (now[i] && !before[i]) show(cockpits_pages[i]);
  }
  const auto& pointing = choices_.pointing;
  if (pointing && !pointing->until.empty() && holds(pointing->until, cockpit_)) {
    choices_.pointing.reset();
    changed_ = true;
  }
}

void Pages::take(const PageClick& click) {
  std::visit([&](const auto& each) { act(each); }, click);
  changed_ = true;
}

void Pages::act(const page_click::ShowList& click) {
  choices_.list = click.list;
  choices_.pointing.reset();
}

// A second click takes the mark away.
void Pages::act(const page_click::PointAt& click) {
  if (choices_.pointing == click) return choices_.pointing.reset();
  const auto target = target_of(cockpit_, click.gauge, click.control);
  if (!target) return;
  const WindowConfig& window = *window_for(cockpit_, *target->gauge);
  if (!cockpit_.panels().shows(window.ident)) inputs_.take(input::OpenWindow{window.ident});
  choices_.pointing = click;
}

void Pages::act(const page_click::ChangeRange& click) {
  const int last = static_cast<int>(std::size(map_ranges_nm)) - 1;
  choices_.range = std::clamp(choices_.range - click.steps, 0, last);
}

void Pages::act(const page_click::AskFor& click) {
  const Exchange exchange = ask(cockpit_.aircraft(), click.request);
  choices_.talk.push_back(exchange.call);
  choices_.talk.push_back(exchange.answer.empty() ? "Nobody answers." : exchange.answer);
  while (choices_.talk.size() > most_talk) choices_.talk.pop_front();
}

void Pages::act(const page_click::GoTo& click) { choices_.destination = click.place; }

void Pages::act(const page_click::SetFailed& click) {
  if (click.failed)
    inputs_.take(input::Fail{click.key});
  else
    inputs_.take(input::Repair{click.key});
}

void Pages::act(const page_click::RepairAll&) {
  for (const FailureRow& row : AircraftModel::failures())
    if (cockpit_.aircraft().failed(row.key)) inputs_.take(input::Repair{row.key});
}

void Pages::act(const page_click::SetFailureRate& click) {
  inputs_.take(input::FailByChance{click.per_hour});
}

DrawnPage Pages::draw(PanelSize size, double scale) const {
  return draw_page(*shown_, {cockpit_, lists_, choices_, size, scale});
}

std::optional<Target> Pages::pointed() const {
  const auto& pointing = choices_.pointing;
  return pointing ? target_of(cockpit_, pointing->gauge, pointing->control) : std::nullopt;
}

}  // namespace host
