/// A library for Windows: its headers, exports and bitmaps, read on any system.
#pragma once

#include "host/loader/library_file.h"
#include "host/loader/memory_map.h"

namespace host {

/// A whole PE32 or PE32+ library.
class PeFile final : public LibraryFile {
 public:
  /// Whether a file begins as such a library does.
  static bool begins(Bytes bytes);

  /// Throws LibraryError for a file that is not one, or that is cut short.
  explicit PeFile(Bytes bytes);

  std::string bitmap_place() const override { return "bitmap resources"; }
  std::optional<std::vector<ListedBitmap>> bitmaps() const override;
  std::string fault() const override;
  std::unique_ptr<ForeignRecords> foreign_records() const override;

  /// A part of the image that has rights of its own.
  struct Section {
    std::uint32_t address;  ///< from the image's start
    std::uint32_t size;
    unsigned rights;  ///< MemoryMap::Right
  };

  int pointer_size() const { return wide_ ? 8 : 4; }

  /// The library as it would lie in memory at the address that it asks for.
  Bytes image() const { return image_; }
  std::uint64_t base() const { return base_; }
  const std::vector<Section>& sections() const { return sections_; }

  /// Where an exported symbol lies in the image; none if there is no such symbol.
  std::optional<std::uint32_t> address_of(std::string_view symbol) const;

 private:
  struct Directory {
    std::uint32_t address = 0;
    std::uint32_t size = 0;
  };
  struct Headers;

  static Headers headers_of(Bytes bytes);
  void read_directories(Bytes bytes, std::uint64_t at);
  void lay_out(Bytes bytes, const Headers& headers);
  void take_over(Bytes part, std::uint32_t address);
  void read_exports();
  Directory directory(std::size_t number) const;

  bool wide_ = false;
  bool movable_ = true;
  std::uint64_t base_ = 0;
  std::vector<std::byte> image_;
  std::vector<Section> sections_;
  std::vector<Directory> directories_;
  std::vector<std::uint32_t> addresses_;  ///< of the exports
};

}  // namespace host
