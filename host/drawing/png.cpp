#include <cairo.h>

#include <stdexcept>

#include "host/files/output.h"

#include "host/drawing/painter.h"

namespace host {
namespace {

cairo_status_t append(void* text, const unsigned char* bytes, unsigned count) {
  static_cast<std::string*>(text)->append(reinterpret_cast<const char*>(bytes), count);
  return CAIRO_STATUS_SUCCESS;
}

}  // namespace

void write_png(const Canvas& canvas, const std::string& file) {
  // Cairo reads the pixels only, but has no surface over constant ones.
  auto* pixels = reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(canvas.pixels.data()));
  cairo_surface_t* surface = cairo_image_surface_create_for_data(
      pixels, CAIRO_FORMAT_RGB24, canvas.width, canvas.height, canvas.width * 4);
  std::string bytes;
  const cairo_status_t status = cairo_surface_write_to_png_stream(surface, append, &bytes);
  cairo_surface_destroy(surface);
  if (status != CAIRO_STATUS_SUCCESS)
    throw std::runtime_error(file + ": cannot be written: " + cairo_status_to_string(status));
  write_whole_file(file, bytes);
}

}  // namespace host
