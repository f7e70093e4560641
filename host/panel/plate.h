/// The plate that the gauges of a window are mounted on.
#pragma once

#include <filesystem>
#include <span>
#include <string>

#include "host/drawing/painter.h"
#include "host/panel/panel_config.h"
#include "host/panel/panel_set.h"

namespace host {

/// Fills the whole canvas: the window's picture where the configuration names one, else painted metal
/// in the window's colour, with its bays and a seam around every gauge. At night the flood light from
/// above leaves the lower edge darker. `zoom` is canvas pixels per panel pixel. Throws ConfigError when
/// the picture cannot be read.
void draw_plate(Canvas& canvas, const WindowConfig& window, const std::filesystem::path& folder,
                std::span<const Rect> gauges, Face face, double zoom);

/// Why a picture beside a configuration cannot be used; empty if it can.
std::string fault_of_picture(const std::filesystem::path& file);

}  // namespace host
