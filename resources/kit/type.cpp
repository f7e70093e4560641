#include "resources/kit/type.h"

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "resources/kit/paint.h"

namespace artwork {
namespace {

constexpr double unit = 64;  // of the font's outlines in a pixel

struct Release {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
  void operator()(FT_Library library) const { FT_Done_FreeType(library); }
};
using Pattern = std::unique_ptr<FcPattern, Release>;

Pattern best_match(const char* family, bool bold) {
  const Pattern wanted(FcPatternCreate());
  FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family));
  FcPatternAddInteger(wanted.get(), FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
  FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
  FcDefaultSubstitute(wanted.get());
  FcResult result;
  return Pattern(FcFontMatch(nullptr, wanted.get(), &result));
}

const char* text_of(const Pattern& font, const char* what) {
  FcChar8* text = nullptr;
  if (font) FcPatternGetString(font.get(), what, 0, &text);
  return text == nullptr ? "" : reinterpret_cast<const char*>(text);
}

/// The open fonts of a thread.
class Fonts {
 public:
  FT_Face face(const Lettering& lettering) {
    FT_Face& face = faces_[{lettering.family, lettering.bold}];
    if (face == nullptr) {
      const std::string file = text_of(best_match(lettering.family, lettering.bold), FC_FILE);
      if (FT_New_Face(library_.get(), file.c_str(), 0, &face) != 0) {
        throw std::runtime_error("the font " + std::string(lettering.family) + " cannot be read");
      }
    }
    return face;
  }

 private:
  static FT_Library opened() {
    FT_Library library = nullptr;
    FT_Init_FreeType(&library);
    return library;
  }
  std::unique_ptr<FT_LibraryRec_, Release> library_{opened()};
  std::map<std::pair<std::string, bool>, FT_Face> faces_;  // the library closes them
};

FT_Face face_for(const Canvas& canvas, const Lettering& lettering) {
  thread_local Fonts fonts;
  FT_Face face = fonts.face(lettering);
  FT_Set_Char_Size(face, std::lround(lettering.size * canvas.density() * unit), 0, 72, 72);
  return face;
}

/// The letters of a text in UTF-8, of which the cockpit's words need those of up to three bytes.
std::vector<FT_ULong> letters_of(std::string_view text) {
  std::vector<FT_ULong> letters;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0) == 0x80 && !letters.empty()) {
      letters.back() = letters.back() << 6 | (byte & 0x3Fu);
    } else {
      letters.push_back(byte < 0x80 ? byte : byte < 0xE0 ? byte & 0x1Fu : byte & 0x0Fu);
    }
  }
  return letters;
}

/// What a letter covers across, in pixels from its pen.
struct Reach {
  double left, right;
};

Reach reach_of(const FT_Outline& outline) {
  FT_BBox box;
  FT_Outline_Get_CBox(&outline, &box);
  return {static_cast<double>(box.xMin) / unit, static_cast<double>(box.xMax) / unit};
}

/// The hinter puts stems on whole pixels; its heights would differ from letter to letter in so small a size.
/// It leaves round and slanting sides between pixels: the letter is stretched to end on whole ones too.
void fit_stems(FT_Face face, FT_ULong letter) {
  const FT_Outline before = face->glyph->outline;
  const std::vector<FT_Vector> own(before.points, before.points + before.n_points);
  FT_Load_Char(face, letter, FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_NORMAL | FT_LOAD_FORCE_AUTOHINT);
  const FT_Outline& fitted = face->glyph->outline;
  const auto [left, right] = reach_of(fitted);
  const double stretch = std::max(1.0, std::round(right - left)) / (right - left);
  for (std::size_t i = 0; i < own.size(); ++i) {
    const double x = static_cast<double>(fitted.points[i].x) - left * unit;
    fitted.points[i] = {std::lround((std::round(left) + x * stretch / unit) * unit), own[i].y};
  }
}

/// Hands each letter's outline and place to `draw`. Returns the line's width in device pixels, from ink to ink.
template <class Draw>
double set_letters(FT_Face face, std::string_view line, bool level, Draw draw) {
  double pen = 0, own_end = 0, end = 0;  // where the last letter ends: by the font, and as it is set
  bool first = true, new_word = false;
  for (const FT_ULong letter : letters_of(line)) {
    FT_Load_Char(face, letter, FT_LOAD_NO_BITMAP | (level ? FT_LOAD_TARGET_LIGHT : FT_LOAD_NO_HINTING));
    const double advance = static_cast<double>(face->glyph->linearHoriAdvance) / 65536;
    if (face->glyph->outline.n_points > 0) {
      const Reach own = reach_of(face->glyph->outline);
      if (level) fit_stems(face, letter);
      const Reach fitted = reach_of(face->glyph->outline);
      const double own_gap = first ? 0 : pen + own.left - own_end;
      // Letters that touch would be read as another one, and words as one.
      const double least = new_word ? 3 : 1;
      const double gap = !level || first ? own_gap : std::max(least, std::round(own_gap));
      const double place = end + gap - fitted.left;
      draw(face->glyph->outline, place);
      end = place + fitted.right;
      own_end = pen + own.right;
      first = false;
    }
    new_word = face->glyph->outline.n_points == 0;
    pen += advance;
  }
  return end;
}

bool stands_level(const Canvas& canvas) {
  cairo_matrix_t matrix;
  cairo_get_matrix(canvas.cr(), &matrix);
  return std::abs(matrix.yx) < 1e-6 && std::abs(matrix.xy) < 1e-6;
}

// ---- An outline as a path

double x_of(const FT_Vector* point) { return static_cast<double>(point->x) / unit; }
double y_of(const FT_Vector* point) { return -static_cast<double>(point->y) / unit; }

int move_to(const FT_Vector* to, void* cr) {
  cairo_close_path(static_cast<cairo_t*>(cr));
  cairo_move_to(static_cast<cairo_t*>(cr), x_of(to), y_of(to));
  return 0;
}

int line_to(const FT_Vector* to, void* cr) {
  cairo_line_to(static_cast<cairo_t*>(cr), x_of(to), y_of(to));
  return 0;
}

/// A curve with one control point as one with two.
int conic_to(const FT_Vector* control, const FT_Vector* to, void* user) {
  auto* cr = static_cast<cairo_t*>(user);
  double x, y;
  cairo_get_current_point(cr, &x, &y);
  const double cx = x_of(control), cy = y_of(control), tx = x_of(to), ty = y_of(to);
  cairo_curve_to(cr, x + (cx - x) * 2 / 3, y + (cy - y) * 2 / 3, tx + (cx - tx) * 2 / 3,
                 ty + (cy - ty) * 2 / 3, tx, ty);
  return 0;
}

int cubic_to(const FT_Vector* first, const FT_Vector* second, const FT_Vector* to, void* cr) {
  cairo_curve_to(static_cast<cairo_t*>(cr), x_of(first), y_of(first), x_of(second), y_of(second),
                 x_of(to), y_of(to));
  return 0;
}

void add_outline(cairo_t* cr, FT_Outline& outline) {
  static const FT_Outline_Funcs path{move_to, line_to, conic_to, cubic_to, 0, 0};
  FT_Outline_Decompose(&outline, &path, cr);
  cairo_close_path(cr);
}

}  // namespace

bool has_font(const char* family) {
  return std::string_view(text_of(best_match(family, true), FC_FAMILY)) == family;
}

double set_width(const Canvas& canvas, std::string_view line, const Lettering& lettering) {
  const auto nothing = [](const FT_Outline&, double) {};
  return set_letters(face_for(canvas, lettering), line, stands_level(canvas), nothing) /
         canvas.density();
}

void set_line(const Canvas& canvas, Point from, std::string_view line, const Lettering& lettering) {
  const Saved saved(canvas);
  cairo_t* cr = canvas.cr();
  cairo_new_path(cr);
  cairo_translate(cr, from.x, from.y);
  cairo_scale(cr, canvas.hairline(), canvas.hairline());
  set_letters(face_for(canvas, lettering), line, stands_level(canvas),
              [&](FT_Outline& outline, double at) {
                const Saved letter(canvas);
                cairo_translate(cr, at, 0);
                add_outline(cr, outline);
              });
  cairo_fill(cr);
}

}  // namespace artwork
