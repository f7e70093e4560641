/// The records of a library that this system cannot load, in this program's own form.
#pragma once

#include <memory>
#include <vector>

#include "host/loader/memory_map.h"
#include "interface/panel_interface.h"

namespace host {

class PeFile;

/// Copies of the records, whatever size the library's pointers have; pointers to what is the same
/// everywhere (texts, tables of numbers, routines) point into the library's image. What cannot be
/// followed is left as it is: it points nowhere, and a check finds it. Nothing of a library is ever
/// run.
class ForeignRecords {
 public:
  /// The file must outlive the records.
  explicit ForeignRecords(const PeFile& file);
  ~ForeignRecords();

  /// Null where the library does not have it.
  LinkageRecord* linkage() const { return linkage_; }
  ImportTableRecord* imports() const { return imports_; }

  /// What the library could read, write and call of its image, and the copies with the rights of what
  /// was copied.
  const MemoryMap& memory() const { return *memory_; }

 private:
  std::vector<std::unique_ptr<std::byte[]>> copies_;
  std::unique_ptr<MemoryMap> memory_;
  LinkageRecord* linkage_ = nullptr;
  ImportTableRecord* imports_ = nullptr;
};

}  // namespace host
