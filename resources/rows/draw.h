/// Draws the rows.
#pragma once

#include "resources/bitmap_table.h"
#include "resources/kit/dial.h"
#include "resources/rows/board.h"

namespace artwork {

/// How many images a row draws; 0: as many as its run has.
int image_count(const Picture& picture);

/// The image of a bitmap.
void draw(Canvas& canvas, const Bitmap& bitmap);

/// A control or a lamp.
void draw_control(const Canvas& canvas, const Picture& picture, int image);

/// What turns or slides, by what its record says of pivot and range.
void draw_needle(const Canvas& canvas, const Needle& needle, PanelPoint pivot);
void draw_bug(const Canvas& canvas, const Bug& bug, PanelPoint pivot);
void draw_flag(const Canvas& canvas, const Flag& flag, int image);
/// `window` is how much of it shows at a time, along its way.
void draw_drum(const Canvas& canvas, const Drum& drum, const MovingAxis& axis, double window);
void draw_compass_strip(const Canvas& canvas, const CompassStrip& strip, const MovingAxis& axis,
                        double window);
void draw_tape(const Canvas& canvas, const Tape& tape, const MovingAxis& axis, double window);
void draw_mask(const Canvas& canvas, const Mask& mask);
void draw_compass_card(const Canvas& canvas, const CompassCard& card, Point centre);
void draw_ball(const Canvas& canvas, const Ball& ball, Point centre);

/// A whole plate: paint, what its parts need of it, and its items.
void draw_plate(const Board& board, std::span<const Item> items);
/// The shade of a plate's openings, which lies on the overlay: no pixel of a plate is half clear.
void shade_openings(const Board& board, std::span<const Item> items);
/// The middle of a dial on its plate.
Point middle_of(const GaugeHeader& gauge, const Dial& dial);
void draw_dial(const Board& board, const Dial& dial);

/// Where a control turns within its picture of that size.
Point hub_in(const Picture& picture, Size size);

/// From a control's hub to the words above or below it.
double words_distance(const Picture& picture, Size size);

/// What the plate has of a control that stands on it.
void fit(const Canvas& canvas, const Picture& picture, Box box);

}  // namespace artwork
