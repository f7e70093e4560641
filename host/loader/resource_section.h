/// The bitmaps of one `.panelres` section, or of a file with the same bytes, by number.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
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

  /// The numbered bitmap; null if there is none. Drawing never asks for a named one.
  const Dib* find(std::uint32_t id) const;

  /// Numbers of the bitmaps, and how many there are.
  const std::map<std::uint32_t, Dib>& numbered() const { return numbered_; }

  /// What was left out and why, a line for each.
  const std::vector<std::string>& notes() const { return notes_; }

 private:
  void add(Bytes bytes, std::uint64_t place);

  std::map<std::uint32_t, Dib> numbered_;
  std::vector<std::string> notes_;
};

}  // namespace host
