/// A shared library of this system.
#pragma once

#include <string_view>

#include "host/loader/foreign_records.h"
#include "host/loader/library_file.h"

namespace host {

/// A whole shared library for this machine, of which global and weak symbols are its exports.
class ElfFile final : public LibraryFile {
 public:
  /// Throws LibraryError for a file that is not one, or that is cut short.
  explicit ElfFile(Bytes bytes);

  /// The bytes of the section of that name; none if there is no such section.
  std::optional<Bytes> section(std::string_view name) const;

  std::string bitmap_place() const override;
  std::optional<std::vector<ListedBitmap>> bitmaps() const override;
  std::string fault() const override;
  std::unique_ptr<ForeignRecords> foreign_records() const override { return nullptr; }

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
};

}  // namespace host
