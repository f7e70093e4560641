/// Text read-outs in the fonts that gauges name.
#pragma once

#include <memory>
#include <string_view>

#include "host/drawing/pixels.h"
#include "interface/panel_interface.h"

namespace host {

/// Sets one line of text in a box, left-aligned and in the middle of its height: as large as the
/// box is high and so many figures fit as the longest text has; a text of wider letters is
/// narrowed.
class TextSetter {
 public:
  /// `box` is in canvas pixels. "QUARTZ", whatever its letter case, is a display of segments; other
  /// names are font families.
  TextSetter(const StringPart& part, PanelSize box);
  ~TextSetter();
  TextSetter(const TextSetter&) = delete;
  TextSetter& operator=(const TextSetter&) = delete;

  /// Sets another text, of printable ASCII, and returns whether any of it can be seen.
  bool set(std::string_view text);

  /// The box with the text on nothing.
  PixelView pixels() const;

 private:
  struct Setting;
  std::unique_ptr<Setting> setting_;
};

}  // namespace host
