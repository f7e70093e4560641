#include "host/window/notices.h"

#include <algorithm>

namespace host {
namespace {

constexpr double note_seconds = 7;
constexpr std::size_t most_notes = 4;

}  // namespace

void Notices::add(const std::string& text, double now) {
  std::erase_if(notes_, [&](const Note& note) { return note.text == text; });
  notes_.push_back({text, now + note_seconds});
  if (notes_.size() > most_notes) notes_.erase(notes_.begin());
  place_notes();
}

void Notices::set_badge(const std::string& text) {
  badge_ = text;
  place();
}

void Notices::toggle_help() {
  help_ = !help_;
  place();
}

void Notices::tick(double now) {
  if (std::erase_if(notes_, [&](const Note& note) { return now >= note.until; }) > 0) place_notes();
}

double Notices::next_tick() const {
  double next = std::numeric_limits<double>::infinity();
  for (const Note& note : notes_) next = std::min(next, note.until);
  return next;
}

void Notices::place_notes() {
  if (notes_.empty()) return view_.set_layer(Layer::note, std::nullopt);
  std::string text;
  for (const Note& note : notes_) text += (text.empty() ? "" : "\n") + note.text;
  const PanelSize size = view_.screen().size();
  Overlay overlay = draw_note(text, size.width * 2 / 3, view_.scale());
  overlay.x = (size.width - overlay.width) / 2;
  overlay.y = size.height - overlay.height - static_cast<int>(16 * view_.scale());
  view_.set_layer(Layer::note, std::move(overlay));
}

void Notices::place() {
  const PanelSize size = view_.screen().size();
  place_notes();
  view_.set_layer(Layer::badge, std::nullopt);
  if (!badge_.empty()) {
    Overlay overlay = draw_badge(badge_, view_.scale());
    overlay.x = (size.width - overlay.width) / 2;
    overlay.y = static_cast<int>(30 * view_.scale());
    view_.set_layer(Layer::badge, std::move(overlay));
  }
  view_.set_layer(Layer::help, std::nullopt);
  if (!help_) return;
  Overlay overlay = draw_help(size.width, size.height, view_.scale());
  overlay.x = (size.width - overlay.width) / 2;
  overlay.y = (size.height - overlay.height) / 2;
  view_.set_layer(Layer::help, std::move(overlay));
}

}  // namespace host
