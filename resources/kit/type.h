/// Type: letters set on the grid of device pixels, so that small words keep the strength of their strokes.
#pragma once

#include <string_view>

#include "resources/kit/canvas.h"
#include "resources/kit/styles.h"

namespace artwork {

/// Whether a font family is installed; without it, words would take another one's shapes.
bool has_font(const char* family);

/// The width of a line without breaks from ink to ink, in gauge pixels.
double set_width(const Canvas& canvas, std::string_view line, const Lettering& lettering);

/// Fills a line with the source set last, from its left end on its baseline. Where words stand level, the
/// stems of each letter lie on whole pixels, and the gaps between letters are whole; both stay as near to the
/// font's own as that allows. Turned words have the font's own shapes and gaps.
void set_line(const Canvas& canvas, Point from, std::string_view line, const Lettering& lettering);

}  // namespace artwork
