#include "host/window/screen_window.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "host/window/ui_pictures.h"
#include "host/window/x11_desktop.h"

namespace host {
namespace {

constexpr const char* fills_screen =
    "fills the screen";  // a note on a window that does by its own hand

bool is_set(const char* variable) {
  const char* value = std::getenv(variable);
  return value && *value;
}

// A driver that is asked for by name is used, even one that shows nothing.
bool shows_something() {
  const std::string_view driver = SDL_GetCurrentVideoDriver();
  return is_set("SDL_VIDEODRIVER") || (driver != "offscreen" && driver != "dummy" && driver != "evdev");
}

std::string named_display() {
  for (const char* variable : {"WAYLAND_DISPLAY", "DISPLAY"})
    if (is_set(variable)) return std::string(variable) + "=" + std::getenv(variable);
  return "SDL_VIDEODRIVER=" + std::string(std::getenv("SDL_VIDEODRIVER"));
}

[[noreturn]] void no_display(const std::string& reason) {
  throw std::runtime_error("no display to open a window on (" + reason +
                           "). Without one: tarnvale run --png pictures --wav flight.wav");
}

bool on_x11() { return std::string_view(SDL_GetCurrentVideoDriver()) == "x11"; }

void set_icon(SDL_Window* window) {
  Overlay icon = draw_icon(64);
  SDL_Surface* surface = SDL_CreateRGBSurfaceWithFormatFrom(
      icon.pixels.data(), icon.width, icon.height, 32, icon.width * 4, SDL_PIXELFORMAT_ARGB8888);
  if (!surface) return;
  SDL_SetWindowIcon(window, surface);
  SDL_FreeSurface(surface);
}

int shared(int from, int length, int other, int other_length) {
  return std::max(0, std::min(from + length, other + other_length) - std::max(from, other));
}

// The room on the screen that has most of the place; the first one's for a place that is on none.
SDL_Rect room_for(const WindowPlace& place) {
  SDL_Rect best{0, 0, 1280, 800};
  SDL_GetDisplayUsableBounds(0, &best);
  int most = 0;
  for (int screen = 0; place.x && place.y && screen < SDL_GetNumVideoDisplays(); ++screen) {
    SDL_Rect room;
    if (SDL_GetDisplayUsableBounds(screen, &room) != 0) continue;
    const int common =
        shared(*place.x, place.width, room.x, room.w) * shared(*place.y, place.height, room.y, room.h);
    if (common > most) most = common, best = room;
  }
  return best;
}

SDL_Rect on_a_screen(const WindowPlace& place) {
  const SDL_Rect room = room_for(place);
  SDL_Rect rect{SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, std::min(place.width, room.w),
                std::min(place.height, room.h)};
  if (place.x) rect.x = std::clamp(*place.x, room.x, room.x + room.w - rect.w);
  if (place.y) rect.y = std::clamp(*place.y, room.y, room.y + room.h - rect.h);
  return rect;
}

Desktop* open_desktop = nullptr;

SDL_Window* open_window(const std::string& title, const SDL_Rect& rect) {
  return SDL_CreateWindow(title.c_str(), rect.x, rect.y, rect.w, rect.h,
                          SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI);
}

Rect within(const Rect& rect, PanelSize size) {
  const int x = std::clamp(rect.x, 0, size.width), y = std::clamp(rect.y, 0, size.height);
  return {x, y, std::clamp(rect.x + rect.width, 0, size.width) - x,
          std::clamp(rect.y + rect.height, 0, size.height) - y};
}

}  // namespace

Desktop::Desktop() {
  if (!is_set("DISPLAY") && !is_set("WAYLAND_DISPLAY") && !is_set("SDL_VIDEODRIVER"))
    no_display("neither DISPLAY nor WAYLAND_DISPLAY is set");
  SDL_SetMainReady();
  // Where there is only an X display no other driver is tried: each would complain on standard error.
  if (!is_set("WAYLAND_DISPLAY")) SDL_SetHint(SDL_HINT_VIDEODRIVER, "x11");
  SDL_SetHint(SDL_HINT_VIDEO_HIGHDPI_DISABLED, "0");
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");  // a switch on another window works at once
  x11_forgive_late_events();
  if (SDL_Init(SDL_INIT_VIDEO) != 0 || !shows_something()) {
    SDL_Quit();
    no_display("nothing answers at " + named_display());
  }
  // Without joysticks one still flies; they are heard while another window has the keyboard, too.
  SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
  SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER);
  SDL_EnableScreenSaver();
  // Plain copies of changed rectangles: a picture in a texture would go to the screen as a whole.
  if (on_x11()) SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  open_desktop = this;
}

Desktop::~Desktop() {
  open_desktop = nullptr;
  clear();
  SDL_Quit();
}

void Desktop::clear() {
  keeping_ = false;
  for (SDL_Window* window : std::exchange(kept_, {})) SDL_DestroyWindow(window);
}

double Desktop::scale() { return on_x11() ? x11_scale() : 1.0; }

PanelSize Desktop::usable_size() {
  SDL_Rect bounds{0, 0, 1280, 800};
  SDL_GetDisplayUsableBounds(0, &bounds);
  return {bounds.w, bounds.h};
}

void ScreenWindow::Close::operator()(SDL_Window* window) const {
  if (open_desktop && open_desktop->keeping_)
    open_desktop->kept_.push_back(window);
  else
    SDL_DestroyWindow(window);
}

ScreenWindow::ScreenWindow(const std::string& title, const WindowPlace& place) {
  auto& kept = open_desktop->kept_;
  const auto same = [&](SDL_Window* window) { return title == SDL_GetWindowTitle(window); };
  if (const auto found = std::ranges::find_if(kept, same); found != kept.end()) {
    window_.reset(*found);
    kept.erase(found);
    before_full_ = place;
  } else {
    window_.reset(open_window(title, on_a_screen(place)));
  }
  if (!window_) throw std::runtime_error(std::string("cannot open a window: ") + SDL_GetError());
  SDL_SetWindowMinimumSize(window_.get(), 160, 120);
  set_icon(window_.get());
  take_size();
}

double ScreenWindow::density() const {
  int width = 0, pixels = 0;
  SDL_GetWindowSize(window_.get(), &width, nullptr);
  SDL_GetWindowSizeInPixels(window_.get(), &pixels, nullptr);
  return width > 0 && pixels > 0 ? static_cast<double>(pixels) / width : 1.0;
}

PanelPoint ScreenWindow::pixel_at(int x, int y) const {
  const double pixels = density();
  return {static_cast<int>(std::floor(x * pixels)), static_cast<int>(std::floor(y * pixels))};
}

bool ScreenWindow::take_size() {
  int width = 0, height = 0;
  SDL_GetWindowSizeInPixels(window_.get(), &width, &height);
  width = std::clamp(width, 1, 16384);
  height = std::clamp(height, 1, 16384);
  if (width == canvas_.width && height == canvas_.height) return false;
  canvas_ = Canvas(width, height);
  return true;
}

bool ScreenWindow::is_full_screen() const {
  return SDL_GetWindowData(window_.get(), fills_screen) ||
         (SDL_GetWindowFlags(window_.get()) & SDL_WINDOW_FULLSCREEN_DESKTOP);
}

void ScreenWindow::set_full_screen(bool full) {
  if (full == is_full_screen()) return;
  if (full) before_full_ = place();
  if (on_x11() && !x11_has_window_manager()) return fill_screen(full);
  SDL_SetWindowFullscreen(window_.get(), full ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0);
}

// Where nobody places windows a full screen would begin at the window's corner.
void ScreenWindow::fill_screen(bool full) {
  SDL_Rect place{before_full_.x.value_or(0), before_full_.y.value_or(0), before_full_.width,
                 before_full_.height};
  if (full) SDL_GetDisplayBounds(SDL_GetWindowDisplayIndex(window_.get()), &place);
  SDL_SetWindowData(window_.get(), fills_screen, full ? window_.get() : nullptr);
  SDL_SetWindowSize(window_.get(), place.w, place.h);
  SDL_SetWindowPosition(window_.get(), place.x, place.y);
}

WindowPlace ScreenWindow::place() const {
  if (is_full_screen()) return before_full_;
  int x = 0, y = 0, width = 0, height = 0;
  SDL_GetWindowPosition(window_.get(), &x, &y);
  SDL_GetWindowSize(window_.get(), &width, &height);
  return {x, y, width, height};
}

void ScreenWindow::raise() {
  SDL_RaiseWindow(window_.get());
  SDL_SetWindowInputFocus(window_.get());  // for desktops without a window manager
}

void ScreenWindow::present(const std::vector<Rect>& changed) {
  SDL_Surface* surface = SDL_GetWindowSurface(window_.get());
  if (!surface || SDL_LockSurface(surface) != 0) return;
  const PanelSize common{std::min(surface->w, canvas_.width), std::min(surface->h, canvas_.height)};
  std::vector<SDL_Rect> rects;
  for (const Rect& each : changed) {
    const Rect rect = within(each, common);
    if (rect.width == 0 || rect.height == 0) continue;
    auto* to = static_cast<Uint8*>(surface->pixels) + std::ptrdiff_t(rect.y) * surface->pitch +
               std::ptrdiff_t(rect.x) * surface->format->BytesPerPixel;
    SDL_ConvertPixels(rect.width, rect.height, SDL_PIXELFORMAT_RGB888,
                      &canvas_.pixels[std::size_t(rect.y) * canvas_.width + rect.x], canvas_.width * 4,
                      surface->format->format, to, surface->pitch);
    rects.push_back({rect.x, rect.y, rect.width, rect.height});
  }
  SDL_UnlockSurface(surface);
  if (rects.empty()) return;
  SDL_UpdateWindowSurfaceRects(window_.get(), rects.data(), static_cast<int>(rects.size()));
}

}  // namespace host
