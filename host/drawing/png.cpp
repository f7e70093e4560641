#include <png.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "host/drawing/painter.h"
#include "host/files/output.h"

namespace host {
namespace {

// The library ends a routine that reports a fault by throwing through it or by jumping; this throws.
[[noreturn]] void fail(png_structp, png_const_charp what) { throw std::runtime_error(what); }
void ignore(png_structp, png_const_charp) {}

void append(png_structp png, png_bytep bytes, png_size_t count) {
  static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(bytes), count);
}

void flush(png_structp) {}

struct Writer {
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, ignore);
  png_infop info = png != nullptr ? png_create_info_struct(png) : nullptr;
  Writer() {
    if (info == nullptr) throw std::bad_alloc();
  }
  ~Writer() { png_destroy_write_struct(&png, &info); }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;
};

// Packed for speed: a picture is taken in the middle of a flight. Panels are drawn with noise and soft
// light, which takes most of the packer's time to little profit.
std::string packed(const Canvas& canvas) {
  constexpr int level = 2, bits = 8;
  std::string bytes;
  Writer writer;
  png_set_write_fn(writer.png, &bytes, append, flush);
  png_set_IHDR(writer.png, writer.info, static_cast<png_uint_32>(canvas.width),
               static_cast<png_uint_32>(canvas.height), bits, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_set_compression_level(writer.png, level);
  png_set_filter(writer.png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
  png_write_info(writer.png, writer.info);
  std::vector<png_byte> row(static_cast<std::size_t>(canvas.width) * 3);
  for (std::size_t at = 0; at < canvas.pixels.size(); at += static_cast<std::size_t>(canvas.width)) {
    for (std::size_t x = 0; x < static_cast<std::size_t>(canvas.width); ++x) {
      const std::uint32_t pixel = canvas.pixels[at + x];
      for (int channel = 0; channel < 3; ++channel)
        row[3 * x + channel] = static_cast<png_byte>(pixel >> (16 - 8 * channel));
    }
    png_write_row(writer.png, row.data());
  }
  png_write_end(writer.png, writer.info);
  return bytes;
}

}  // namespace

void write_png(const Canvas& canvas, const std::string& file) {
  std::string bytes;
  try {
    bytes = packed(canvas);
  } catch (const std::exception& error) {
    throw std::runtime_error(file + ": cannot be written: " + error.what());
  }
  write_whole_file(file, bytes);
}

}  // namespace host
