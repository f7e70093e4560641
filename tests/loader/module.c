/* A module of one small gauge with an element of every kind, and, by BREAK_..., broken ones. */
#include "interface/panel_interface.h"

#define VISIBLE __attribute__((visibility("default")))

extern const GaugeHeader gauge;

/* ---- Bitmaps: three of 8 x 8 pixels, the first two of them an icon's ------------------------ */

typedef struct SmallBitmap {
  u32 size;
  i32 width, height;
  uint16_t planes, bits;
  u32 compression, image_size;
  i32 x_per_metre, y_per_metre;
  u32 colours, important;
  u32 palette[2];
  unsigned char rows[8][8];
  unsigned char padding[16];
} SmallBitmap;

typedef struct Resources {
  PanelResourceHeader header;
  PanelResourceEntry entries[3];
  SmallBitmap bitmaps[3];
} Resources;

#define SMALL(colour, bits) {40, 8, 8, 1, bits, 0, 0, 0, 0, 2, 0, {colour, 0xFFFFFF}, {{0}}, {0}}
#ifdef BREAK_NO_BACKGROUND
#define BACKGROUND_BITS 7
#else
#define BACKGROUND_BITS 8
#endif
#define ENTRY(number, id) \
  {id, offsetof(Resources, bitmaps) + (number) * sizeof(SmallBitmap), sizeof(SmallBitmap), 0, ""}

#ifndef BREAK_NO_BITMAPS
__attribute__((section(PANEL_RESOURCE_SECTION), used, aligned(16)))
static const Resources resources = {
    {"PANELRES", PANEL_RESOURCE_VERSION, 3},
    {ENTRY(0, 10), ENTRY(1, 20), ENTRY(2, 21)},
    {SMALL(0x202020, BACKGROUND_BITS), SMALL(0x0000FF, 8), SMALL(0x00FF00, 8)},
};
#endif

/* ---- The gauge ------------------------------------------------------------------------------ */

static int init_calls;
static void init(void) { ++init_calls; }
static void query(void) {}
static void install(uintptr_t argument) { (void)argument; }
static f64 one(Element *element) { (void)element; return 1; }
static i32 press(PanelPoint point, u32 flags) { (void)point; (void)flags; return 0; }
static void serve(const GaugeHeader *header, u32 id, uintptr_t data) {
  (void)header, (void)id, (void)data;
}

static Element icon;
#ifdef BREAK_BAD_POINTER
static Element *const below_background[] = {(Element *)64, 0};
#else
static Element *const below_background[] = {&icon, 0};
#endif
static Element *const below_icon[] = {0};
static const FailureEntry failures[] = {{20, FAILURE_HIDE, 0}, {0, 0, 0}};

static Element background = {ELEMENT_STATIC_IMAGE, 10, {0, 0}, &gauge, below_background, 0, 1, 0,
                             {{{0}}}};
static Element icon = {ELEMENT_ICON, 20, {2, 2}, &gauge, below_icon, failures, 3, 0,
                       {.icon = {{0, 0, 0}, one, 1, 2, 1}}};

static const MouseArea areas[] = {
    {MOUSE_GROUP, 0, 0, 0, 0, CURSOR_ARROW, 0, 0, 0, 0, {0}, 0},
    {MOUSE_CLICK_AREA, 1, 1, 4, 4, CURSOR_HAND, 0, MOUSE_LEFT, 0, 0, {press}, 0},
    {MOUSE_GROUP_END, 0, 0, 0, 0, CURSOR_ARROW, 0, 0, 0, 0, {0}, 0},
    {MOUSE_END, 0, 0, 0, 0, CURSOR_ARROW, 0, 0, 0, 0, {0}, 0},
};

const GaugeHeader gauge = {
    GAUGE_HEADER_VERSION, 0, "Small", {&background, 0}, query, install, query, query, install, query,
    query, 40, 0, areas, serve, 0, 0};

/* ---- What the host finds -------------------------------------------------------------------- */

#ifndef BREAK_NO_SYMBOLS
VISIBLE ImportTableRecord ImportTable = {{{IMPORT_PANEL_SERVICES, 0, 0}, {0, 0, 0}}};
#ifndef BREAK_NO_LINKAGE
VISIBLE LinkageRecord Linkage = {LINKAGE_MODULE_ID, 0, init, init, 0, 0, LINKAGE_VERSION, 0, {&gauge, 0}};
#endif
#endif
#ifdef BREAK_EXTRA_SYMBOL
VISIBLE int surplus;
#endif
