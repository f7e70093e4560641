/// The bitmaps of one `.panelres` section, or of a file with the same bytes, by number.
#pragma once

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "host/loader/dib.h"

namespace host {

/// The section as a whole cannot be read; what() says why.
struct ResourceError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class ResourceSection {
 public:
  /// Reads the directory and checks every bitmap; the bytes must outlive the section. A damaged
  /// bitmap is left out and noted. Throws ResourceError when there is no directory.
  explicit ResourceSection(Bytes bytes);

  /// The bitmap of that number or name; null if there is none. Drawing asks for numbers alone.
  const Dib* find(std::uint32_t id) const;
  const Dib* find(std::string_view name) const;

  /// All bitmaps, by their numbers or names.
  const std::map<std::uint32_t, Dib>& numbered() const { return numbered_; }
  const std::map<std::string, Dib, std::less<>>& named() const { return named_; }

  /// What was left out and why, a line for each.
  const std::vector<std::string>& notes() const { return notes_; }

 private:
  void add(Bytes bytes, std::uint64_t place);

  std::map<std::uint32_t, Dib> numbered_;
  std::map<std::string, Dib, std::less<>> named_;
  std::vector<std::string> notes_;
};

}  // namespace host
