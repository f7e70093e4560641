/// Changes the size of pictures.
#pragma once

#include "host/loader/bitmap.h"

namespace host {

/// The picture at another size of at least 1 x 1, smoothed by a Mitchell filter that is as wide as
/// the size asks for. Edges stay sharp: nothing is taken from outside the picture.
Bitmap resampled(const Bitmap& source, int width, int height);

}  // namespace host
