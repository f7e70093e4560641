/// A gauge: its header, and a body of the elements and click areas that its unit lists.
///
/// A unit declares a `constinit Body` (body.h) from its rows and areas, and below it the `constinit
/// Gauge` that the catalogue names. Both are complete when the library is loaded; nothing of them runs
/// before the host's first call.
#pragma once

#include <cstddef>
#include <span>

#include "module/elements.h"
#include "module/mouse.h"
#include "module/tokens.h"

namespace tarnvale {

/// What a gauge does when the host calls its service routine; null does nothing.
struct Services {
  void (*start)(uintptr_t module) = nullptr;  ///< once, before the first frame; the module's handle
  void (*set_up)() = nullptr;                 ///< once, after start
  void (*tick)() = nullptr;                   ///< every frame, before the values are taken
  void (*after_values)() = nullptr;           ///< every frame, after the values are taken
  void (*before_draw)() = nullptr;            ///< every frame, before drawing
  void (*end)() = nullptr;                    ///< once, when the gauge is destroyed

  constexpr bool any() const { return start || set_up || tick || after_values || before_draw || end; }
};

/// What a gauge is, apart from its elements and areas.
struct Face {
  const char* name;  ///< by which the panel configuration places it
  u32 width_mm;
  i32 background;  ///< bitmap of the root element
  Services services = {};
  u32 light_token = token::panel_lights;  ///< reading 0 hides the lit copy
};

template <std::size_t parts, std::size_t clicks, std::size_t copies>
struct Body;

/// The routines behind every header. Each forwards to one operation of the host on the root element
/// of the first gauge, whichever gauge the host named: the host's own lists do the rest.
void query_elements();
void install_elements(uintptr_t argument);
void initialize_elements();
void update_elements();
void generate_elements(uintptr_t argument);
void draw_elements();
void kill_elements();

/// The service routine of a gauge with logic of its own: day and night, then that.
void serve(const GaugeHeader* gauge, u32 service_id, uintptr_t extra_data);

/// The service routine of a gauge that only has a lit copy.
void serve_light(const GaugeHeader* gauge, u32 service_id, uintptr_t extra_data);

/// The mouse table of a gauge that answers nothing.
inline constexpr MouseArea no_areas[] = {detail::entry(MOUSE_GROUP), detail::entry(MOUSE_GROUP_END),
                                         detail::entry(MOUSE_END)};

/// What the host finds, and what the gauge's service routine needs. The header comes first: the host
/// hands it back.
struct Gauge {
  GaugeHeader header;
  // What every frame asks for lies together: a frame of the whole cockpit is mostly a walk through
  // memory.
  Element* lit = nullptr;  ///< first element of the lit copy, or null
  u32 light_token;         ///< hides the lit copy while it reads 0
  Services services;
  Element root;                             ///< the background
  Element* next[2]{};                       ///< of the root
  std::span<const char* const> part_words;  ///< by element of the first set
  std::span<const char* const> area_words;  ///< by click area

  /// A plate alone.
  constexpr explicit Gauge(const Face& face)
      : header{}, light_token(face.light_token), services(face.services), root{} {
    header.header_version = GAUGE_HEADER_VERSION;
    header.name = face.name;
    header.element_list[0] = &root;
    header.query = query_elements;
    header.install = install_elements;
    header.initialize = initialize_elements;
    header.update = update_elements;
    header.generate = generate_elements;
    header.draw = draw_elements;
    header.kill = kill_elements;
    header.width_mm = face.width_mm;
    header.mouse_areas = no_areas;
    header.service = face.services.any() ? serve : nullptr;
    root.resource_id = face.background;
    root.image_flags = image_flag::background;
    root.gauge = &header;
  }

  template <std::size_t parts, std::size_t clicks, std::size_t copies>
  constexpr Gauge(const Face& face, Body<parts, clicks, copies>& body) : Gauge(face) {
    if (parts > 0) next[0] = &body.chain[0];
    if (parts > 0) root.next = next;
    if (copies == 2) lit = &body.chain[parts];
    if (copies == 2 && !services.any()) header.service = serve_light;
    header.mouse_areas = body.areas;
    part_words = {body.part_words, parts};
    area_words = {body.area_words, clicks};
  }
};

/// The gauge that a header is the first field of.
inline const Gauge& gauge_of(const GaugeHeader& header) {
  return reinterpret_cast<const Gauge&>(header);
}

}  // namespace tarnvale
