#include "host/window/mouse_hand.h"

#include <algorithm>
#include <cmath>

namespace host {
namespace {

constexpr double tooltip_delay = 0.6;  // seconds of rest
constexpr int scroll_step = 60;        // pixels a notch, at scale 1
constexpr int most_notches = 20;       // of one event; a device may claim any number

int limited_notches(int notches) { return std::clamp(notches, -most_notches, most_notches); }

int notches_of(const SDL_MouseWheelEvent& event) {
  const int notches = limited_notches(event.y);
  return event.direction == SDL_MOUSEWHEEL_FLIPPED ? -notches : notches;
}

std::uint32_t mouse_flag(Uint8 button) {
  if (button == SDL_BUTTON_LEFT) return MOUSE_LEFT;
  return button == SDL_BUTTON_RIGHT ? MOUSE_RIGHT : 0;
}

int cursor_at(const std::optional<ViewHit>& hit) {
  if (!hit) return CURSOR_ARROW;
  if (hit->on_caption) return CURSOR_HAND;
  if (!hit->gauge) return CURSOR_ARROW;
  const HotArea* area = hit->gauge->gauge->areas.at(hit->gauge->point, MOUSE_LEFT | MOUSE_RIGHT);
  return area ? area->cursor : CURSOR_ARROW;
}

Hint tooltip_at(const std::optional<ViewHit>& hit, const Cockpit& cockpit) {
  if (!hit) return {};
  if (hit->caption == CaptionPart::tear) return {"Tear off into its own window", {}};
  if (hit->caption == CaptionPart::close) return {"Close", {}};
  if (hit->on_caption) return {"Show it alone", "with Shift beside the others"};
  if (!hit->gauge) return {};
  return hint_at(*hit->gauge->gauge, cockpit.module().bitmaps(), hit->gauge->point);
}

}  // namespace

MouseHand::MouseHand(CockpitInputs& inputs, Views& views, double scale)
    : inputs_(inputs), views_(views), cursors_(scale) {}

View* MouseHand::view_of(Uint32 id, int x, int y) {
  View* view = views_.find(id);
  if (!view) return nullptr;
  view_id_ = id;
  const PanelPoint pixel = view->screen().pixel_at(x, y);
  x_ = pixel.x;
  y_ = pixel.y;
  return view;
}

std::optional<ViewHit> MouseHand::hit() const {
  const View* view = views_.find(view_id_);
  return view ? view->hit(x_, y_) : std::nullopt;
}

std::optional<std::size_t> MouseHand::window_under() const {
  const auto under = hit();
  return under ? std::optional(under->window) : std::nullopt;
}

void MouseHand::take(const SDL_Event& event, double now) {
  switch (event.type) {
    case SDL_MOUSEMOTION: {
      const int x = x_, y = y_;
      if (view_of(event.motion.windowID, event.motion.x, event.motion.y)) move(x_ - x, y_ - y, now);
      break;
    }
    case SDL_MOUSEBUTTONDOWN:
      if (view_of(event.button.windowID, event.button.x, event.button.y))
        press(event.button.button, event.button.clicks);
      break;
    case SDL_MOUSEBUTTONUP: release(event.button.button); break;
    case SDL_MOUSEWHEEL: wheel(event.wheel); break;
    default: break;
  }
}

void MouseHand::move(int dx, int dy, double now) {
  View* view = views_.find(view_id_);
  if (!view) return;
  if (held_) {
    inputs_.take(input::Move{view->point_on(held_->window, *held_->gauge, x_, y_)});
  } else if (scrolling_) {
    view->scroll(dx, dy);
  } else {
    look(now);
  }
}

void MouseHand::look(double now) {
  const auto under = hit();
  cursors_.show(cursor_at(under));
  Hint hint = tooltip_at(under, inputs_.cockpit());
  if (hint != tooltip_) hide_tooltip();
  tooltip_ = std::move(hint);
  if (!tooltip_.words.empty() && !tooltip_shown_) tooltip_due_ = now + tooltip_delay;
}

void MouseHand::hide_tooltip() {
  views_.each([](View& view) { view.set_layer(Layer::tooltip, std::nullopt); });
  tooltip_shown_ = false;
  tooltip_due_ = Pointer::never;
}

void MouseHand::show_hint(const Hint& hint) {
  View* view = views_.find(view_id_);
  tooltip_due_ = Pointer::never;
  if (!view || hint.words.empty()) return;
  Overlay overlay = draw_tooltip(hint, view->scale());
  const PanelSize size = view->screen().size();
  const int below = static_cast<int>(22 * view->scale());
  overlay.x = std::clamp(x_ + below / 2, 0, std::max(0, size.width - overlay.width));
  overlay.y = y_ + below + overlay.height <= size.height ? y_ + below : y_ - overlay.height - below / 4;
  view->set_layer(Layer::tooltip, std::move(overlay));
  tooltip_shown_ = true;
}

void MouseHand::press(Uint8 button, int clicks) {
  hide_tooltip();
  const auto under = hit();
  if (under && under->on_caption && button == SDL_BUTTON_LEFT) return press_caption(*under, clicks);
  if (under && under->gauge && mouse_flag(button)) press_control(*under, mouse_flag(button));
  const View* view = views_.find(view_id_);
  if (!held_ && button != SDL_BUTTON_RIGHT) scrolling_ = view && !view->is_covered(x_, y_);
}

void MouseHand::press_control(const ViewHit& hit, std::uint32_t button) {
  let_go();
  if (look_only_) return;
  CockpitGauge& gauge = *hit.gauge->gauge;
  const Hint refusal = refusal_at(inputs_.cockpit(), gauge, hit.gauge->point, button);
  const input::Press press{gauge.header().name, hit.gauge->point, input::Button{button}};
  if (inputs_.take(press) != Answer::nothing) held_ = Held{&gauge, hit.window, button};
  show_hint(refusal);
}

void MouseHand::press_caption(const ViewHit& hit, int clicks) {
  if (hit.caption == CaptionPart::close) {
    inputs_.take(input::CloseWindow{inputs_.cockpit().config().windows[hit.window].ident});
  } else if (hit.caption == CaptionPart::tear || clicks == 2) {
    views_.toggle_torn(hit.window);
  } else {
    views_.bring(hit.window, SDL_GetModState() & KMOD_SHIFT);
  }
}

void MouseHand::release(Uint8 button) {
  scrolling_ = false;
  if (held_ && mouse_flag(button) == held_->button) let_go();
}

void MouseHand::let_go() {
  if (held_) inputs_.take(input::Release{});
  held_.reset();
}

void MouseHand::wheel(const SDL_MouseWheelEvent& event) {
  const int notches = notches_of(event);
  const auto under = hit();
  if (under && under->gauge && notches != 0 && !look_only_) {
    const auto [gauge, point] = *under->gauge;
    if (inputs_.take(input::Wheel{gauge->header().name, point, notches}) != Answer::nothing) return;
  }
  scroll(event);
}

void MouseHand::scroll(const SDL_MouseWheelEvent& event) {
  View* view = views_.find(event.windowID);
  if (!view) return;
  const int step = static_cast<int>(scroll_step * view->scale());
  const bool sideways = SDL_GetModState() & KMOD_SHIFT;
  const int right = limited_notches(event.x), up = limited_notches(event.y);
  view->scroll((sideways ? up : -right) * step, sideways ? 0 : up * step);
}

void MouseHand::zoom(const SDL_MouseWheelEvent& event) {
  View* view = views_.find(event.windowID);
  if (view) view->zoom_by(std::pow(zoom_notch, notches_of(event)), place_in(*view));
}

void MouseHand::look_only(bool only) {
  let_go();
  look_only_ = only;
}

std::optional<PanelPoint> MouseHand::place_in(const View& view) const {
  return view.screen().id() == view_id_ ? std::optional(PanelPoint{x_, y_}) : std::nullopt;
}

void MouseHand::tick(double now) {
  if (now >= tooltip_due_) show_hint(tooltip_);
}

double MouseHand::next_tick() const { return tooltip_due_; }

void MouseHand::reset() {
  let_go();
  hide_tooltip();
  tooltip_ = {};
  scrolling_ = false;
}

}  // namespace host
