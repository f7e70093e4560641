/// The few things a loader wants to know of a shared library before it lets the system load it.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "host/loader/byte_view.h"

namespace host {

/// The file is no library for this machine; what() says why, without the file's name.
struct ElfError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A symbol that the library offers to others.
struct ExportedSymbol {
  std::string name;
  std::uint64_t size;  ///< bytes; 0 if the library does not say
};

/// A whole shared library for this machine; the bytes must outlive it.
class ElfFile {
 public:
  /// Throws ElfError for a file that is not one, or that is cut short.
  explicit ElfFile(Bytes bytes);

  /// The bytes of the section of that name; none if there is no such section.
  std::optional<Bytes> section(std::string_view name) const;

  /// Global and weak symbols that the library defines, in the file's order.
  const std::vector<ExportedSymbol>& exports() const { return exports_; }

 private:
  struct Section {
    std::string name;
    std::uint32_t type;
    std::uint32_t link;
    Bytes bytes;
  };

  void read_sections();
  void read_exports();

  Bytes bytes_;
  std::vector<Section> sections_;
  std::vector<ExportedSymbol> exports_;
};

}  // namespace host
