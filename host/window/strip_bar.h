/// What stands at the right end of the strip of tabs: how to get help, or the flow that is being flown.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/drawing/painter.h"
#include "host/sketch/sketch.h"

namespace host {

enum class StripAct { help, menu, slower, faster, pause, take_over };

/// In pixels of the picture, which is as high as the strip.
struct StripBar {
  struct Spot {
    Rect place;
    StripAct act;
  };
  Overlay picture;
  std::vector<Spot> spots;

  std::optional<StripAct> at(int x, int y) const;
};

/// The hint for a person who has never pressed H.
StripBar draw_help_hint(double scale);

struct FlowState {
  std::string name, stage;  ///< the stage is what it said last
  int speed = 1;            ///< times real time
  bool paused = false;
};

/// At most `width` pixels wide: then the stage is cut short.
StripBar draw_flow_bar(const FlowState& flow, int width, double scale);

}  // namespace host
