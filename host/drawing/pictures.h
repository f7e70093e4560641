/// A module's bitmaps at the size at which one gauge shows them.
#pragma once

#include <map>
#include <memory>
#include <tuple>

#include "host/drawing/blend_turned.h"
#include "host/loader/bitmap.h"
#include "interface/panel_interface.h"

namespace host {

/// Canvas pixels per pixel of the gauge's background.
struct Scale {
  double x = 1;
  double y = 1;
};

/// Under what light a picture is seen. At night the paint recedes and the panel lighting shines
/// through the legends; parts that shine by themselves are always seen by day. Among parts is what stands on
/// a plate whose lit copy says that all of it shines: levers and guards are as dark as the plate, and
/// only what is bright on them, a lens or a word, shines.
enum class Light { day, night, among_parts };
inline constexpr std::size_t kinds_of_light = 3;

/// A picture at its final size, without the clear pixels around it.
struct Picture {
  Rect visible;  ///< what is left, in pixels of the whole picture
  bool opaque = false;
  PixelView pixels;                      ///< of the visible part
  std::shared_ptr<const Bitmap> bitmap;  ///< that they belong to
};

/// The visible part of a picture with a clear edge around it, ready to be turned or shifted by
/// parts of a pixel, and the ways back from its pixels.
struct TurningPicture {
  Bitmap pixels;
  PanelSize whole;  ///< the whole picture's size, canvas pixels
  Affine to_whole;  ///< to the pixels of the whole picture
  Affine to_image;  ///< to those of the module's own bitmap

  PixelView view() const { return {pixels.pixels.data(), pixels.width, pixels.height, pixels.width}; }
};

/// The edge of a background pixel in canvas pixels; far outside for values that no canvas reaches.
int scaled_edge(double at, double scale);

/// The canvas pixels of an image of `size` that stands at `position`; edges that meet on the
/// background meet on the canvas.
Rect scaled_place(PanelPoint position, PanelSize size, Scale scale);

/// Where something can be seen behind a gauge's face, canvas pixels.
struct Openings {
  std::vector<RowPart> parts;  ///< rows from the top down
  bool sharp = true;           ///< the face covers a pixel or leaves it, nothing in between
};

/// The smallest rectangle around them.
Rect around(const Openings& openings);

class Pictures {
 public:
  /// The store must outlive the pictures.
  Pictures(const BitmapStore& bitmaps, Scale scale) : bitmaps_(bitmaps), scale_(scale) {}

  Scale scale() const { return scale_; }

  /// The module's own size of a bitmap; {0, 0} if there is none.
  PanelSize size(std::int64_t id) const;

  /// The bitmap at the size of `width` x `height` canvas pixels; null if there is none or if
  /// nothing of it can be seen. Stays valid as long as the pictures.
  const Picture* at_size(std::int64_t id, BitmapUse use, int width, int height,
                         Light light = Light::day);

  /// The openings of a face that is read as an image; none if it is no such face.
  std::optional<Openings> openings(const Element& face);

  /// The image at this scale; null as above.
  const TurningPicture* turning(std::int64_t id);

 private:
  using Key = std::tuple<std::uint32_t, BitmapUse, int, int, Light>;

  std::shared_ptr<const Bitmap> best(std::uint32_t id, BitmapUse use, double needed) const;
  Picture made(const Key& key) const;

  const BitmapStore& bitmaps_;
  Scale scale_;
  std::map<Key, Picture> pictures_;
  std::map<std::uint32_t, TurningPicture> turning_;
};

}  // namespace host
