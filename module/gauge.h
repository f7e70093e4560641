/// A gauge as one object with static storage: its header, its chain of elements, its mouse table.
///
/// A gauge unit declares one `constinit Gauge<elements, click_areas>` from a face, the elements top to
/// bottom and the click areas. The object is complete when the library is loaded; nothing of it runs
/// before the host's first call.
#pragma once

#include <cstddef>

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

/// The part of a gauge that does not depend on its sizes.
struct GaugeFrame {
  GaugeHeader header;
  Services services;
  Element* lit;     ///< first element of the lit copy, or null
  u32 light_token;  ///< hides the lit copy while it reads 0
};

/// The service routine of every gauge that has one: day and night, then the gauge's own logic.
void serve(const GaugeHeader* gauge, u32 service_id, uintptr_t extra_data);

/// A header with the seven routines that all gauges share.
constexpr GaugeHeader generic_header();

/// `elements` counts the whole chain with the background: 1 + n, or 1 + 2n where the n elements that
/// the unit lists are repeated as the lit copy. Listing n elements says which.
template <std::size_t elements, std::size_t click_areas>
struct Gauge : GaugeFrame {
  Element chain[elements];
  Element* links[elements][2];
  MouseArea areas[2 + Area::most_entries * click_areas + 1];

  template <std::size_t parts, std::size_t areas_listed>
  constexpr Gauge(const Face& face, const Element (&part)[parts], const Area (&area)[areas_listed])
      : Gauge(face) {
    static_assert(areas_listed == click_areas);
    lay_elements(part);
    lay_areas(area, areas_listed);
  }

  template <std::size_t parts>
  constexpr Gauge(const Face& face, const Element (&part)[parts]) : Gauge(face) {
    static_assert(click_areas == 0);
    lay_elements(part);
  }

  template <std::size_t areas_listed>
  constexpr Gauge(const Face& face, const Area (&area)[areas_listed]) : Gauge(face) {
    static_assert(elements == 1 && areas_listed == click_areas);
    lay_areas(area, areas_listed);
  }

  constexpr explicit Gauge(const Face& face)
      : GaugeFrame{generic_header(), face.services, nullptr, face.light_token},
        chain{},
        links{},
        areas{} {
    header.name = face.name;
    header.width_mm = face.width_mm;
    header.element_list[0] = &chain[0];
    header.mouse_areas = areas;
    if (face.services.any()) header.service = serve;
    chain[0].resource_id = face.background;
    chain[0].image_flags = image_flag::background;
    chain[0].gauge = &header;
    lay_areas(nullptr, 0);
  }

 private:
  template <std::size_t parts>
  constexpr void lay_elements(const Element (&part)[parts]) {
    static_assert(elements == 1 + parts || elements == 1 + 2 * parts,
                  "the chain is the background and the listed elements, once or twice");
    for (std::size_t i = 0; i < parts; ++i) chain[1 + i] = part[i];
    if constexpr (elements == 1 + 2 * parts) lay_lit_copy(parts);
    for (std::size_t i = 0; i < elements; ++i) chain[i].gauge = &header;
    for (std::size_t i = 0; i + 1 < elements; ++i) {
      links[i][0] = &chain[i + 1];
      chain[i].next = links[i];
    }
  }

  /// The lit copy is the first set once more, all of it shining.
  constexpr void lay_lit_copy(std::size_t parts) {
    for (std::size_t i = 0; i < parts; ++i) {
      chain[1 + parts + i] = chain[1 + i];
      chain[1 + parts + i].image_flags |= image_flag::luminous;
    }
    lit = &chain[1 + parts];
    for (Element& element : chain) {
      if (&element != lit) element.image_flags &= ~IMAGE_HIDE_CHAIN;
    }
    header.service = serve;
  }

  constexpr void lay_areas(const Area* area, std::size_t count) {
    MouseArea* to = areas;
    *to++ = detail::entry(MOUSE_GROUP);
    for (std::size_t i = 0; i < count; ++i) {
      for (std::size_t k = 0; k < area[i].count; ++k) *to++ = area[i].entries[k];
    }
    *to++ = detail::entry(MOUSE_GROUP_END);
    *to = detail::entry(MOUSE_END);
  }
};

/// The routines behind every header. Each forwards to one operation of the host on the root element
/// of the first gauge, whichever gauge the host named: the host's own lists do the rest.
void query_elements();
void install_elements(uintptr_t argument);
void initialize_elements();
void update_elements();
void generate_elements(uintptr_t argument);
void draw_elements();
void kill_elements();

constexpr GaugeHeader generic_header() {
  GaugeHeader header{};
  header.header_version = GAUGE_HEADER_VERSION;
  header.query = query_elements;
  header.install = install_elements;
  header.initialize = initialize_elements;
  header.update = update_elements;
  header.generate = generate_elements;
  header.draw = draw_elements;
  header.kill = kill_elements;
  return header;
}

}  // namespace tarnvale
