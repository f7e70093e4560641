/* A module of one gauge that says on standard error what its areas are told: a knob of two halves that
   repeat while they are held, and a switch to the right of them. */
#include <stdio.h>

#include "interface/panel_interface.h"

#define VISIBLE __attribute__((visibility("default")))

extern const GaugeHeader gauge;

/* ---- Its background, 64 x 40 ----------------------------------------------------------------- */

typedef struct Background {
  u32 size;
  i32 width, height;
  uint16_t planes, bits;
  u32 compression, image_size;
  i32 x_per_metre, y_per_metre;
  u32 colours, important;
  u32 palette[2];
  unsigned char rows[40][64];
} Background;

typedef struct Resources {
  PanelResourceHeader header;
  PanelResourceEntry entry;
  _Alignas(16) Background background;
} Resources;

__attribute__((section(PANEL_RESOURCE_SECTION), used, aligned(16)))
static const Resources resources = {
    {"PANELRES", PANEL_RESOURCE_VERSION, 1},
    {10, offsetof(Resources, background), sizeof(Background), 0, ""},
    {40, 64, 40, 1, 8, 0, 0, 0, 0, 2, 0, {0x204060, 0xFFFFFF}, {{0}}}};

/* ---- The gauge ------------------------------------------------------------------------------- */

static i32 tell(const char *area, PanelPoint point, u32 flags) {
  fprintf(stderr, "%s %d,%d%s\n", area, point.x, point.y, flags & MOUSE_REPEAT ? " again" : "");
  return 0;
}
static i32 lower(PanelPoint point, u32 flags) { return tell("down", point, flags); }
static i32 raise(PanelPoint point, u32 flags) { return tell("up", point, flags); }
static i32 flip(PanelPoint point, u32 flags) { return tell("switch", point, flags); }

static void nothing(void) {}
static void nothing_of(uintptr_t argument) { (void)argument; }

static Element *const none[] = {0};
static Element background = {ELEMENT_STATIC_IMAGE, 10, {0, 0}, &gauge, none, 0, 1, 0, {{{0}}}};

static const MouseArea areas[] = {
    {MOUSE_GROUP, 0, 0, 64, 40, CURSOR_ARROW, 0, 0, 0, 0, {0}, 0},
    {MOUSE_CLICK_AREA, 0, 0, 20, 40, CURSOR_DECREASE, 0, MOUSE_LEFT | MOUSE_REPEAT, 0, 0, {lower}, 0},
    {MOUSE_CLICK_AREA, 20, 0, 20, 40, CURSOR_INCREASE, 0, MOUSE_LEFT | MOUSE_REPEAT, 0, 0, {raise}, 0},
    {MOUSE_CLICK_AREA, 40, 0, 24, 40, CURSOR_HAND, 0, MOUSE_LEFT, 0, 0, {flip}, 0},
    {MOUSE_GROUP_END, 0, 0, 0, 0, CURSOR_ARROW, 0, 0, 0, 0, {0}, 0},
    {MOUSE_END, 0, 0, 0, 0, CURSOR_ARROW, 0, 0, 0, 0, {0}, 0},
};

const GaugeHeader gauge = {
    GAUGE_HEADER_VERSION, 0, "Tally", {&background, 0}, nothing, nothing_of, nothing, nothing,
    nothing_of, nothing, nothing, 64, 0, areas, 0, 0, 0};

VISIBLE ImportTableRecord ImportTable = {{{IMPORT_PANEL_SERVICES, 0, 0}, {0, 0, 0}}};
VISIBLE LinkageRecord Linkage = {LINKAGE_MODULE_ID, 0, nothing, nothing, 0, 0, LINKAGE_VERSION, 0,
                                 {&gauge, 0}};
