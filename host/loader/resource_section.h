/// The bitmaps of a library, or of a file with the bytes of a `.panelres` section, by number.
#pragma once

#include <functional>
#include <map>
#include <optional>
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

  /// The bitmap of that number or name; null if there is none. Drawing asks for numbers alone.
  const Dib* find(std::uint32_t id) const;
  const Dib* find(std::string_view name) const;

  /// All bitmaps, by their numbers or names.
  const std::map<std::uint32_t, Dib>& numbered() const { return numbered_; }
  const std::map<std::string, Dib, std::less<>>& named() const { return named_; }

  /// What was left out and why, a line for each.
  const std::vector<std::string>& notes() const { return notes_; }

 private:
  void add(const ListedBitmap& bitmap);

  std::map<std::uint32_t, Dib> numbered_;
  std::map<std::string, Dib, std::less<>> named_;
  std::vector<std::string> notes_;
};

}  // namespace host
