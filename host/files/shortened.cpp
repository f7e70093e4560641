#include "host/files/shortened.h"

namespace host {
namespace {

bool continues(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

// No cut in the middle of a letter of several bytes.
std::string_view head(std::string_view text, std::size_t size) {
  while (size > 0 && continues(text[size])) --size;
  return text.substr(0, size);
}

std::string_view tail(std::string_view text, std::size_t size) {
  std::size_t from = text.size() - size;
  while (from < text.size() && continues(text[from])) ++from;
  return text.substr(from);
}

}  // namespace

std::string shortened(std::string_view text, std::size_t most) {
  std::string line(text);
  if (text.size() > most)
    line = std::string(head(text, most * 2 / 3)) + "..." + std::string(tail(text, most / 4));
  for (char& c : line)
    if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') c = '?';
  return line;
}

}  // namespace host
