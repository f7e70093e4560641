/// What there is to know about a library's file before the system loads it, and about one that only
/// another system can load.
#pragma once

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/loader/resource_section.h"

namespace host {

class ForeignRecords;

/// The file is no library that can be used or read here; what() says why, without the file's name.
struct LibraryError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A symbol that the library exports.
struct ExportedSymbol {
  std::string name;
  std::uint64_t size = 0;     ///< bytes; 0 if the library does not say
  std::uint32_t ordinal = 0;  ///< 0 on systems without
};

/// A whole library's file of either kind; its bytes must outlive it.
class LibraryFile {
 public:
  virtual ~LibraryFile() = default;

  /// The symbols that it exports, in the file's order.
  const std::vector<ExportedSymbol>& exports() const { return exports_; }

  /// Where it carries bitmaps, for messages: "section .panelres".
  virtual std::string bitmap_place() const = 0;

  /// Its bitmaps; none if there is no such place. Throws ResourceError when what is there cannot be
  /// read.
  virtual std::optional<std::vector<ListedBitmap>> bitmaps() const = 0;

  /// What is wrong with what the system's loader will follow; empty where nothing is.
  virtual std::string fault() const = 0;

  /// The records of a library that this system cannot load, null for one that it can.
  virtual std::unique_ptr<ForeignRecords> foreign_records() const = 0;

 protected:
  std::vector<ExportedSymbol> exports_;
};

/// The library in a file, by what it begins with. Throws LibraryError.
std::unique_ptr<LibraryFile> read_library(Bytes bytes);

}  // namespace host
