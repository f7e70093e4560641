/// The bitmaps of a library, or of a file with the bytes of a `.panelres` section, by number.
#pragma once

#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/loader/dib.h"

namespace host {

/// The section as a whole cannot be read; what() says why.
struct ResourceError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A packed bitmap as a directory lists it.
struct ListedBitmap {
  std::uint32_t id = 0;        ///< PANEL_RESOURCE_NAMED for a named one
  std::string name;            ///< empty for a numbered one
  std::optional<Bytes> bytes;  ///< none if they do not all lie in the file
};

/// What the directory at a section's start lists. Throws ResourceError when there is none.
std::vector<ListedBitmap> listed_bitmaps(Bytes section);

class ResourceSection {
 public:
  /// Checks every bitmap; their bytes must outlive the section. A damaged bitmap is left out and noted.
  explicit ResourceSection(const std::vector<ListedBitmap>& listed);
  explicit ResourceSection(Bytes section) : ResourceSection(listed_bitmaps(section)) {}

  /// The numbered bitmap; null if there is none. Drawing never asks for a named one.
  const Dib* find(std::uint32_t id) const;

  /// Numbers of the bitmaps, and how many there are.
  const std::map<std::uint32_t, Dib>& numbered() const { return numbered_; }

  /// What was left out and why, a line for each.
  const std::vector<std::string>& notes() const { return notes_; }

 private:
  void add(const ListedBitmap& bitmap);

  std::map<std::uint32_t, Dib> numbered_;
  std::vector<std::string> notes_;
};

}  // namespace host
