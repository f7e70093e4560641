/// Standby compass (above the glareshield): a card that floats in the earth's field. It is read from
/// the pilot's side, so its figures run backwards.
#include "module/catalogue.h"

namespace tarnvale {
namespace {

f64 card_place(Element* card) {
  constexpr f64 turn = 360;
  const f64 place = turn - card->moving_image.x.source.value;
  return place >= 0 && place <= turn ? place : 0;
}

f64 level(Element*) { return 1; }

/// The card swims level: it has a place across, and only one of them.
constexpr Row compass_card() {
  Row row = card("Compass card", 13130, 13131, {8, 2}, {0, 360}, card_place)
                .from(token::standby_compass)
                .fails_with(failure::standby_compass);
  for (Element* e : {&row.day, &row.lit}) e->moving_image.y = {{}, level, 1, 1};
  return row;
}

constinit Body body{wiskey, {compass_card()}, HelpPage{0xAB77}};

}  // namespace

constinit Gauge wiskey{{.name = "Wiskey", .width_mm = 71, .background = 13120}, body};

}  // namespace tarnvale
