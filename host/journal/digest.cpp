#include "host/journal/digest.h"

#include <array>
#include <bit>
#include <cstdio>

#include "host/files/read_file.h"

namespace host {
namespace {

void add(Digest& digest, const ElementState& element) {
  digest.add(std::uint64_t{element.evaluated} << 1 | std::uint64_t{element.drawn});
  for (double value : element.values) digest.add(value);
  digest.add(element.reached.value_or(0));
  digest.add(element.text);
}

}  // namespace

void Digest::add(std::string_view bytes) {
  for (const char byte : bytes) value_ = (value_ ^ static_cast<unsigned char>(byte)) * 0x100000001B3u;
}

void Digest::add(std::uint64_t bits) {
  std::array<char, 8> bytes;
  for (char& byte : bytes) {
    byte = static_cast<char>(bits & 255);
    bits >>= 8;
  }
  add(std::string_view(bytes.data(), bytes.size()));
}

void Digest::add(double value) { add(std::bit_cast<std::uint64_t>(value)); }

std::string hexadecimal(std::uint64_t number, int digits) {
  std::array<char, 24> text;
  std::snprintf(text.data(), text.size(), "%0*llx", digits, static_cast<unsigned long long>(number));
  return text.data();
}

std::uint64_t digest_of(Cockpit& cockpit) {
  Digest digest;
  for (const TableRow& row : AircraftModel::tokens()) digest.add(cockpit.aircraft().token(row.number));
  for (const CockpitWindow& window : cockpit.windows())
    for (const PlacedGauge& placed : window.gauges)
      for (const ElementState& element : placed.gauge->run.now()) add(digest, element);
  return digest.value();
}

std::uint64_t digest_of(const std::filesystem::path& file) {
  Digest digest;
  digest.add(std::string_view(read_file(file, 512 * mebibyte)));
  return digest.value();
}

}  // namespace host
