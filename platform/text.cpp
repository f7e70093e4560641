#include <windows.h>

#include <array>
#include <charconv>
#include <cstdarg>
#include <string_view>

namespace {

constexpr std::size_t text_limit = 1024;  // with the final zero

/// The text so far; what does not fit is dropped.
struct Text {
  char* start;
  std::size_t length = 0;

  void put(char c) {
    if (length + 1 < text_limit) start[length++] = c;
  }
  void put(std::string_view part) {
    for (const char c : part) put(c);
  }
  void fill(char c, std::size_t count) {
    while (count-- > 0) put(c);
  }
};

/// How a conversion stands in its field.
struct Field {
  bool left = false;
  bool zeros = false;
  std::size_t width = 0;
};

/// `sign` is what zeros come after.
void put_field(Text& text, const Field& field, std::string_view sign, std::string_view body) {
  const std::size_t used = sign.size() + body.size();
  const std::size_t missing = field.width > used ? field.width - used : 0;
  const bool zeros = field.zeros && !field.left;
  if (!field.left && !zeros) text.fill(' ', missing);
  text.put(sign);
  if (zeros) text.fill('0', missing);
  text.put(body);
  if (field.left) text.fill(' ', missing);
}

void put_number(Text& text, const Field& field, ULONG magnitude, bool negative, int base, bool upper) {
  std::array<char, 16> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), magnitude, base).ptr;
  if (upper) {
    for (char& c : digits) c = c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
  }
  const std::string_view body(digits.data(), static_cast<std::size_t>(end - digits.data()));
  put_field(text, field, negative ? "-" : "", body);
}

/// Reads flags and width; leaves `format` on the conversion letter.
Field read_field(const char*& format) {
  Field field;
  for (; *format == '-' || *format == '0'; ++format) {
    (*format == '-' ? field.left : field.zeros) = true;
  }
  for (; *format >= '0' && *format <= '9'; ++format) {
    field.width = field.width * 10 + static_cast<std::size_t>(*format - '0');
    if (field.width > text_limit) field.width = text_limit;
  }
  if (*format == 'l') ++format;  // a LONG is an int here
  return field;
}

struct Arguments {
  va_list list;
};

void put_conversion(Text& text, const Field& field, char letter, Arguments& arguments) {
  switch (letter) {
    case 'd':
    case 'i': {
      const LONG value = va_arg(arguments.list, LONG);
      const auto bits = static_cast<ULONG>(value);
      return put_number(text, field, value < 0 ? 0 - bits : bits, value < 0, 10, false);
    }
    case 'u': return put_number(text, field, va_arg(arguments.list, ULONG), false, 10, false);
    case 'x':
    case 'X': return put_number(text, field, va_arg(arguments.list, ULONG), false, 16, letter == 'X');
    case 'c': {
      const auto character = static_cast<char>(va_arg(arguments.list, int));
      const std::size_t length = character == '\0' ? 0 : 1;  // a zero would end the text
      return put_field(text, field, "", {&character, length});
    }
    case 's': {
      const char* string = va_arg(arguments.list, const char*);
      return put_field(text, field, "", string != nullptr ? string : "(null)");
    }
    default: return text.put(letter);  // a second % among them
  }
}

}  // namespace

int wsprintfA(LPSTR destination, LPCSTR format, ...) {
  Text text{destination};
  Arguments arguments;
  va_start(arguments.list, format);
  while (*format != '\0') {
    if (*format != '%') {
      text.put(*format++);
      continue;
    }
    ++format;
    const Field field = read_field(format);
    if (*format == '\0') break;
    put_conversion(text, field, *format++, arguments);
  }
  va_end(arguments.list);
  destination[text.length] = '\0';
  return static_cast<int>(text.length);
}
