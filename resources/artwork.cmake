# A library of drawing, and the tool that draws every bitmap with it.
find_package(PkgConfig REQUIRED)
pkg_check_modules(CAIRO_AND_FONTS REQUIRED IMPORTED_TARGET cairo fontconfig freetype2)
find_package(Threads REQUIRED)

# The rows of every gauge: a file in panels/ is found by itself.
file(GLOB panel_sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/panels/*/*.cpp)
list(TRANSFORM panel_sources REPLACE ".*/(.+)\\.cpp" "UNIT(\\1)" OUTPUT_VARIABLE panel_units)
list(JOIN panel_units "\n" panel_units)
file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/units/units.inc CONTENT "${panel_units}\n" @ONLY)

add_library(artwork_panels OBJECT ${panel_sources})
target_link_libraries(artwork_panels PUBLIC project_options PkgConfig::CAIRO_AND_FONTS)
# What every unit reads, read once.
target_precompile_headers(artwork_panels PRIVATE
  <algorithm> <cmath> <functional> <span> <string> <string_view> <variant> <vector> <cairo.h>
  ${CMAKE_CURRENT_SOURCE_DIR}/art.h)

add_library(artwork_kit STATIC
  bitmap_table.cpp
  kit/canvas.cpp
  kit/dial.cpp
  kit/flight.cpp
  kit/guard.cpp
  kit/knob.cpp
  kit/lamp.cpp
  kit/legend.cpp
  kit/lever.cpp
  kit/metal.cpp
  kit/needle.cpp
  kit/paint.cpp
  kit/quadrant.cpp
  kit/records.cpp
  kit/type.cpp
  kit/window.cpp
  rows/board.cpp
  rows/controls.cpp
  rows/dial.cpp
  rows/draw.cpp
  rows/moving.cpp
  rows/plate.cpp
  tool/compose.cpp
  tool/indexed.cpp
  tool/keys.cpp
  tool/library.cpp
  tool/section.cpp
)
target_link_libraries(artwork_kit PUBLIC
  project_options needle_geometry PkgConfig::CAIRO_AND_FONTS Threads::Threads gauge_names_lib)
# What nearly every unit reads, read once.
target_precompile_headers(artwork_kit PRIVATE
  <algorithm> <cmath> <functional> <initializer_list> <string> <string_view> <vector> <cairo.h>)
if(NOT TARNVALE_SANITIZE)
  # Drawing at build time pays for an optimised tool in every configuration.
  target_compile_options(artwork_kit PRIVATE -O2)
endif()

# All of it, for the tool and its tests.
add_library(artwork_units OBJECT tool/windows_resources.cpp units.cpp)
target_include_directories(artwork_units PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/units)
target_link_libraries(artwork_units PUBLIC project_options PkgConfig::CAIRO_AND_FONTS)
add_library(artwork_library INTERFACE)
target_sources(artwork_library INTERFACE
  $<TARGET_OBJECTS:artwork_units> $<TARGET_OBJECTS:artwork_panels> $<TARGET_OBJECTS:gauge_module>)
target_link_libraries(artwork_library INTERFACE artwork_kit winplatform)

add_executable(artwork tool/main.cpp)
target_link_libraries(artwork PRIVATE artwork_library)
