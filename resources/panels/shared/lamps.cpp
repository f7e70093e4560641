/// Lamps that stand on many panels.
#include "resources/kit/lamp.h"
#include "resources/panels/panels.h"

namespace artwork {
namespace {

/// Press-to-test: the first picture is the lit one.
void draw_round_light(Canvas& canvas, int image) {
  round_light(canvas, {12.5, 12.5}, 9.6, palette::lamp_amber, image == 0);
}

void draw_off_light(Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), {palette::lamp_amber, "OFF"}, image == 1);
}

constexpr Art art[] = {
    {2110, 2, {26, 26}, draw_round_light, "press-to-test light: lit, dark"},
    {2120, 2, {27, 22}, draw_off_light, "OFF light: dark, lit"},
};

}  // namespace

const std::span<const Art> shared_lamp_art = art;

}  // namespace artwork
