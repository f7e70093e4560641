/*
 * The line between a panel host and a gauge module: every record that crosses it.
 *
 * Plain C records, natural alignment, the platform's C calling convention. Text is zero-terminated
 * ASCII. All calls come on one thread, one at a time. Records that a module publishes have static
 * storage and are complete when the library is loaded; the host keeps pointers to them while the
 * module is loaded. Neither side frees or keeps any other memory of the other's.
 *
 * This header compiles as C11 and as C++20 and includes nothing of the project.
 */
#ifndef TARNVALE_PANEL_INTERFACE_H
#define TARNVALE_PANEL_INTERFACE_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#define PANEL_STATIC_ASSERT static_assert
#else
#define PANEL_STATIC_ASSERT _Static_assert
#endif

typedef uint32_t u32;
typedef int32_t i32;
typedef double f64;

typedef struct Element Element;
typedef struct GaugeHeader GaugeHeader;

/* ---- Small records ------------------------------------------------------------------------- */

/* A place in pixels, relative to what the field that holds it says. */
typedef struct PanelPoint {
  i32 x;
  i32 y;
} PanelPoint;

/* A size in pixels. */
typedef struct PanelSize {
  i32 width;
  i32 height;
} PanelSize;

/* One reading of a host token variable. The host fills in `value`. */
typedef struct TokenVariable {
  u32 token;    /* the variable's number; 0: none */
  u32 reserved; /* 0 */
  f64 value;
} TokenVariable;

/* What an element shows while a system has failed; a table ends with an entry whose key is 0. */
typedef struct FailureEntry {
  u32 key;    /* the failed system, a number of the host's */
  u32 action; /* enum FailureAction */
  u32 zero;
} FailureEntry;

enum FailureAction {
  FAILURE_FREEZE = 1, /* the last value, frozen */
  FAILURE_ZERO = 2,   /* the value 0 */
  FAILURE_HIDE = 3    /* nothing */
};

/* One calibration point: the needle's tip lies toward `point` (background pixels) at `value`. */
typedef struct NonlinearityPoint {
  PanelPoint point;
  f64 value;
} NonlinearityPoint;

/* ---- Routines ------------------------------------------------------------------------------ */

/* Called by the host once a frame for each value of a shown element, after its source was filled. */
typedef f64 (*ValueRoutine)(Element* element);

/* Called by the host for each click, repeat or drag step. `point` is relative to the area that was
 * hit; `mouse_flags` holds the MOUSE_ bits that fired. The result is not used. */
typedef i32 (*MouseRoutine)(PanelPoint point, u32 mouse_flags);

/* Called by the host with an id of enum ServiceId. `extra_data` is the module's handle for
 * SERVICE_BEGIN and 0 otherwise. */
typedef void (*ServiceRoutine)(const GaugeHeader* gauge, u32 service_id, uintptr_t extra_data);

typedef void (*HeaderRoutine)(void);
typedef void (*HeaderArgumentRoutine)(uintptr_t argument);

enum ServiceId {
  SERVICE_BEGIN = 3,        /* once, before the gauge's first frame */
  SERVICE_TICK = 6,         /* every frame, before the element values are taken */
  SERVICE_AFTER_VALUES = 7, /* every frame, after the element values are taken */
  SERVICE_BEFORE_DRAW = 10, /* every frame, before drawing */
  SERVICE_END = 12,         /* once, when the gauge's window is destroyed for good */
  SERVICE_SET_UP = 14       /* once, after SERVICE_BEGIN */
};

/* ---- Elements ------------------------------------------------------------------------------ */

enum ElementKind {
  ELEMENT_STATIC_IMAGE = 0,
  ELEMENT_NEEDLE = 1,
  ELEMENT_STRING = 2,
  ELEMENT_SLIDER = 3,
  ELEMENT_ICON = 4,
  ELEMENT_MOVING_IMAGE = 5,
  ELEMENT_SPRITE = 6
};

/* Bits of Element.image_flags that the host acts on. */
#define IMAGE_HIDE_CHAIN   0x2000000u  /* the element and all after it: neither evaluated nor drawn */
#define IMAGE_HIDE_PICTURE 0x40000000u /* only this element's picture; its routines still run */

/* Shows image number `value` of `image_count` bitmaps numbered from the element's resource id. */
typedef struct IconPart {
  TokenVariable source;
  ValueRoutine value; /* or null: the source's value */
  u32 switch_mode;
  u32 image_count;
  f64 switch_scale;
} IconPart;

/* Which way a needle goes from one point of its table to the next, in ascending order of value. */
enum NeedleTurn {
  TURN_CLOCKWISE = 0,  /* even where the whole table is more than one turn */
  TURN_SHORTER_WAY = 1 /* for scales that run counterclockwise or step back a little */
};

/* Turns about `center`, a pixel of its own image that lies on the element's position. */
typedef struct NeedlePart {
  PanelPoint center;
  TokenVariable source;
  ValueRoutine value;
  const NonlinearityPoint* table; /* or null: the value is degrees clockwise */
  u32 table_length;
  u32 turn;       /* enum NeedleTurn */
  f64 rate_limit; /* greatest speed in full scales a second; 0: none */
} NeedlePart;

/* Shows `text`, which the value routine writes. */
typedef struct StringPart {
  PanelSize size;
  TokenVariable source[2];
  ValueRoutine value;
  u32 foreground; /* colours are 0x00BBGGRR */
  u32 background;
  u32 highlight;
  u32 weight; /* 400 normal, 700 bold */
  u32 character_set;
  u32 max_characters;
  const char* font;
  char* text; /* max_characters + 1 bytes, zero-terminated */
} StringPart;

/* Stands at its position plus value x scale pixels on each axis; a scale of 0 means no motion. */
typedef struct SliderPart {
  TokenVariable x_source;
  ValueRoutine x_value;
  f64 x_scale;
  TokenVariable y_source;
  ValueRoutine y_value;
  f64 y_scale;
} SliderPart;

typedef struct MovingAxis {
  TokenVariable source;
  ValueRoutine value;
  f64 minimum;
  f64 maximum;
} MovingAxis;

/* An image that moves behind a window of the mask's size. */
typedef struct MovingImagePart {
  i32 mask_resource_id; /* or -1 */
  u32 reserved;
  MovingAxis x;
  MovingAxis y;
} MovingImagePart;

typedef struct SpriteAxis {
  TokenVariable source;
  ValueRoutine value;
  f64 scale;
} SpriteAxis;

/* Shifted by value x scale pixels and turned by value x scale degrees about `texture_center`. */
typedef struct SpritePart {
  PanelPoint texture_center;
  SpriteAxis x;
  SpriteAxis y;
  SpriteAxis rotation;
} SpritePart;

struct Element {
  u32 kind;            /* enum ElementKind */
  i32 resource_id;     /* -1 for strings */
  PanelPoint position; /* pixels of the gauge's background */
  const GaugeHeader* gauge;
  Element* const* next;         /* a null-terminated list, or null */
  const FailureEntry* failures; /* or null */
  u32 image_flags;
  u32 reserved; /* 0 */
  union {
    IconPart icon;
    NeedlePart needle;
    StringPart string;
    SliderPart slider;
    MovingImagePart moving_image;
    SpritePart sprite;
  };
};

/* ---- Mouse areas --------------------------------------------------------------------------- */

enum MouseAreaKind {
  MOUSE_END = 0,
  MOUSE_GROUP = 1,
  MOUSE_CLICK_AREA = 2,
  MOUSE_GROUP_END = 3,
  MOUSE_TOOLTIP = 4
};

enum MouseCursor { CURSOR_ARROW = -1, CURSOR_INCREASE = 1, CURSOR_DECREASE = 2, CURSOR_HAND = 5 };

#define MOUSE_LEFT   0x20000000u
#define MOUSE_RIGHT  0x80000000u
#define MOUSE_REPEAT 0x00200000u /* repeats while held */
#define MOUSE_DRAG   0x00800000u /* called with the pointer's position for every move while held */

typedef struct MouseArea {
  u32 kind; /* enum MouseAreaKind */
  i32 x;    /* pixels, relative to the enclosing group */
  i32 y;
  i32 width;
  i32 height;
  i32 cursor; /* enum MouseCursor */
  u32 help_id;
  u32 mouse_flags; /* the actions that the area answers */
  u32 event_id;
  u32 reserved; /* 0 */
  union {
    MouseRoutine routine;
    const char* tooltip;
  };
  const void* extra_data;
} MouseArea;

/* ---- Gauge header -------------------------------------------------------------------------- */

#define GAUGE_HEADER_VERSION 0x320u

struct GaugeHeader {
  u32 header_version; /* GAUGE_HEADER_VERSION */
  u32 reserved;       /* 0 */
  const char* name;
  Element* element_list[2]; /* the root, then null */
  HeaderRoutine query;
  HeaderArgumentRoutine install;
  HeaderRoutine initialize;
  HeaderRoutine update;
  HeaderArgumentRoutine generate;
  HeaderRoutine draw;
  HeaderRoutine kill;
  u32 width_mm;
  u32 reserved2;                /* 0 */
  const MouseArea* mouse_areas; /* ends with MOUSE_END */
  ServiceRoutine service;       /* or null */
  u32 user_data;                /* 0; the host's */
  u32 reserved3;                /* 0 */
};

/* ---- Services, import table, linkage ------------------------------------------------------- */

/* What the host does for a module. */
typedef struct PanelServices {
  void (*element_list_query)(const Element* root);
  void (*element_list_install)(const Element* root, uintptr_t argument);
  void (*element_list_initialize)(const Element* root);
  void (*element_list_update)(const Element* root);
  void (*element_list_generate)(const Element* root, uintptr_t argument);
  void (*element_list_plot)(const Element* root);
  void (*element_list_kill)(const Element* root);
  void (*panel_window_toggle)(u32 ident);
  void (*trigger_key_event)(u32 event, u32 value);
  void (*lookup_var)(TokenVariable* variable);
  void (*panel_window_close_ident)(u32 ident);
  void (*panel_window_open_ident)(u32 ident);
} PanelServices;

#define IMPORT_PANEL_SERVICES 0x0Fu

/* The host stores its services' address in the entry with IMPORT_PANEL_SERVICES. */
typedef struct ImportEntry {
  u32 identifier;
#if UINTPTR_MAX == 0xFFFFFFFFFFFFFFFFu
  u32 reserved; /* 0; only where pointers have eight bytes */
#endif
  const void* pointer;
} ImportEntry;

typedef struct ImportTableRecord {
  ImportEntry entries[2]; /* the second is all zeros: the end */
} ImportTableRecord;

#define LINKAGE_MODULE_ID   0x13u
#define LINKAGE_VERSION     0x900u
#define LINKAGE_GAUGE_COUNT 120

typedef struct LinkageRecord {
  u32 module_id; /* LINKAGE_MODULE_ID */
  u32 reserved;
  void (*init)(void);
  void (*deinit)(void);
  u32 flags;    /* 0 */
  u32 priority; /* 0 */
  u32 version;  /* LINKAGE_VERSION */
  u32 reserved2;
  const GaugeHeader* gauges[LINKAGE_GAUGE_COUNT + 1]; /* the last is null */
} LinkageRecord;

/* ---- Bitmaps ------------------------------------------------------------------------------- */

#define PANEL_RESOURCE_SECTION ".panelres"
#define PANEL_RESOURCE_MAGIC   "PANELRES"
#define PANEL_RESOURCE_VERSION 1u
#define PANEL_RESOURCE_NAMED   0xFFFFFFFFu

/* At the start of the section; the directory follows at once. Little-endian. */
typedef struct PanelResourceHeader {
  char magic[8];
  u32 version;
  u32 count;
} PanelResourceHeader;

/* Numbered bitmaps first, ascending; then named ones. */
typedef struct PanelResourceEntry {
  u32 id;     /* PANEL_RESOURCE_NAMED for a named bitmap */
  u32 offset; /* of the bitmap from the section's start, a multiple of 16 */
  u32 size;   /* bytes */
  u32 reserved;
  char name[48]; /* empty for a numbered bitmap */
} PanelResourceEntry;

/* ---- Layout -------------------------------------------------------------------------------- */

/* Each record's size and each field's offset, first where pointers have eight bytes, then where they
 * have four. A double lies at a multiple of eight on both. */
#if UINTPTR_MAX == 0xFFFFFFFFFFFFFFFFu
#define PANEL_BYTES(wide, narrow) (wide)
#else
#define PANEL_BYTES(wide, narrow) (narrow)
#endif
#define PANEL_OFFSET(record, field, wide, narrow) \
  PANEL_STATIC_ASSERT(offsetof(record, field) == PANEL_BYTES(wide, narrow), #record "." #field)
#define PANEL_SIZE(record, wide, narrow) \
  PANEL_STATIC_ASSERT(sizeof(record) == PANEL_BYTES(wide, narrow), #record)

PANEL_SIZE(PanelPoint, 8, 8);
PANEL_SIZE(PanelSize, 8, 8);
PANEL_SIZE(TokenVariable, 16, 16);
PANEL_OFFSET(TokenVariable, value, 8, 8);
PANEL_SIZE(FailureEntry, 12, 12);
PANEL_SIZE(NonlinearityPoint, 16, 16);
PANEL_SIZE(PanelResourceHeader, 16, 16);
PANEL_SIZE(PanelResourceEntry, 64, 64);

PANEL_SIZE(IconPart, 40, 40);
PANEL_OFFSET(IconPart, value, 16, 16);
PANEL_OFFSET(IconPart, switch_mode, 24, 20);
PANEL_OFFSET(IconPart, image_count, 28, 24);
PANEL_OFFSET(IconPart, switch_scale, 32, 32);
PANEL_SIZE(NeedlePart, 56, 48);
PANEL_OFFSET(NeedlePart, source, 8, 8);
PANEL_OFFSET(NeedlePart, value, 24, 24);
PANEL_OFFSET(NeedlePart, table, 32, 28);
PANEL_OFFSET(NeedlePart, table_length, 40, 32);
PANEL_OFFSET(NeedlePart, turn, 44, 36);
PANEL_OFFSET(NeedlePart, rate_limit, 48, 40);
PANEL_SIZE(StringPart, 88, 80);
PANEL_OFFSET(StringPart, source, 8, 8);
PANEL_OFFSET(StringPart, value, 40, 40);
PANEL_OFFSET(StringPart, foreground, 48, 44);
PANEL_OFFSET(StringPart, weight, 60, 56);
PANEL_OFFSET(StringPart, max_characters, 68, 64);
PANEL_OFFSET(StringPart, font, 72, 68);
PANEL_OFFSET(StringPart, text, 80, 72);
PANEL_SIZE(SliderPart, 64, 64);
PANEL_OFFSET(SliderPart, x_value, 16, 16);
PANEL_OFFSET(SliderPart, x_scale, 24, 24);
PANEL_OFFSET(SliderPart, y_source, 32, 32);
PANEL_SIZE(MovingAxis, 40, 40);
PANEL_SIZE(MovingImagePart, 88, 88);
PANEL_OFFSET(MovingImagePart, x, 8, 8);
PANEL_OFFSET(MovingImagePart, y, 48, 48);
PANEL_SIZE(SpriteAxis, 32, 32);
PANEL_SIZE(SpritePart, 104, 104);
PANEL_OFFSET(SpritePart, x, 8, 8);
PANEL_OFFSET(SpritePart, rotation, 72, 72);
PANEL_SIZE(Element, 152, 144);
PANEL_OFFSET(Element, resource_id, 4, 4);
PANEL_OFFSET(Element, position, 8, 8);
PANEL_OFFSET(Element, gauge, 16, 16);
PANEL_OFFSET(Element, next, 24, 20);
PANEL_OFFSET(Element, failures, 32, 24);
PANEL_OFFSET(Element, image_flags, 40, 28);
PANEL_OFFSET(Element, icon, 48, 40);
PANEL_SIZE(MouseArea, 56, 48);
PANEL_OFFSET(MouseArea, cursor, 20, 20);
PANEL_OFFSET(MouseArea, mouse_flags, 28, 28);
PANEL_OFFSET(MouseArea, routine, 40, 40);
PANEL_OFFSET(MouseArea, extra_data, 48, 44);
PANEL_SIZE(GaugeHeader, 120, 72);
PANEL_OFFSET(GaugeHeader, name, 8, 8);
PANEL_OFFSET(GaugeHeader, element_list, 16, 12);
PANEL_OFFSET(GaugeHeader, query, 32, 20);
PANEL_OFFSET(GaugeHeader, kill, 80, 44);
PANEL_OFFSET(GaugeHeader, width_mm, 88, 48);
PANEL_OFFSET(GaugeHeader, mouse_areas, 96, 56);
PANEL_OFFSET(GaugeHeader, service, 104, 60);
PANEL_OFFSET(GaugeHeader, user_data, 112, 64);
PANEL_SIZE(PanelServices, 96, 48);
PANEL_SIZE(ImportEntry, 16, 8);
PANEL_OFFSET(ImportEntry, pointer, 8, 4);
PANEL_OFFSET(LinkageRecord, init, 8, 8);
PANEL_OFFSET(LinkageRecord, flags, 24, 16);
PANEL_OFFSET(LinkageRecord, version, 32, 24);
PANEL_OFFSET(LinkageRecord, gauges, 40, 32);
PANEL_SIZE(LinkageRecord, 40 + (LINKAGE_GAUGE_COUNT + 1) * 8, 32 + (LINKAGE_GAUGE_COUNT + 1) * 4);

#undef PANEL_BYTES
#undef PANEL_OFFSET
#undef PANEL_SIZE
#undef PANEL_STATIC_ASSERT

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif
