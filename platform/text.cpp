#include <windows.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <string>

namespace {

constexpr int text_limit = 1024;  // with the final zero

/// The text so far; what does not fit is dropped.
struct Text {
  char* start;
  int length = 0;

  void put(char c) {
    if (length + 1 < text_limit) start[length++] = c;
  }

  template <typename Value>
  void print(const char* format, int width, int precision, Value value) {
    const int room = text_limit - length;
    const int wanted = std::snprintf(start + length, room, format, width, precision, value);
    length += std::clamp(wanted, 0, room - 1);
  }
};

/// What stands between a percent sign and its letter, as the C library takes it.
struct Field {
  bool zeros = false;
  int width = 0;       ///< below 0: at the left end of its field
  int precision = -1;  ///< below 0: none
};

int read_number(const char*& format) {
  int number = 0;
  for (; *format >= '0' && *format <= '9'; ++format) {
    number = std::min(number * 10 + (*format - '0'), text_limit);
  }
  return number;
}

/// Leaves `format` on the letter.
Field read_field(const char*& format) {
  Field field;
  bool left = false;
  for (; *format == '-' || *format == '0'; ++format) (*format == '-' ? left : field.zeros) = true;
  field.width = left ? -read_number(format) : read_number(format);
  if (*format == '.') field.precision = read_number(++format);
  if (*format == 'l') ++format;  // a LONG is an int here
  return field;
}

/// A number has at least one digit, whatever its precision.
void put_number(Text& text, const Field& field, char letter, LONG value) {
  std::string format = field.zeros ? "%0*.*" : "%*.*";
  format += letter;
  text.print(format.c_str(), field.width, field.precision == 0 ? 1 : field.precision, value);
}

/// Zeros fill up numbers only.
void put_string(Text& text, const Field& field, const char* string) {
  text.print("%*.*s", field.width, field.precision, string);
}

struct Arguments {
  va_list list;
};

void put_conversion(Text& text, const Field& field, char letter, Arguments& arguments) {
  switch (letter) {
    case 'd':
    case 'i':
    case 'u':
    case 'x':
    case 'X': return put_number(text, field, letter, va_arg(arguments.list, LONG));
    case 'c': {
      // As a string: a zero, which would end the text, is left out.
      const char character[] = {static_cast<char>(va_arg(arguments.list, int)), '\0'};
      return put_string(text, field, character);
    }
    case 's': {
      const char* string = va_arg(arguments.list, const char*);
      return put_string(text, field, string != nullptr ? string : "(null)");
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
  return text.length;
}
