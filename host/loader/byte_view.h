/// Reads records out of bytes of which anything may be wrong.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string_view>
#include <type_traits>

namespace host {

using Bytes = std::span<const std::byte>;

/// `size` bytes from `offset`; nothing when they do not all lie inside.
inline std::optional<Bytes> slice(Bytes bytes, std::uint64_t offset, std::uint64_t size) {
  if (offset > bytes.size() || size > bytes.size() - offset) return std::nullopt;
  return bytes.subspan(offset, size);
}

/// A copy of the record at `offset`, whatever its alignment; nothing when it does not lie inside.
template <typename Record>
std::optional<Record> read(Bytes bytes, std::uint64_t offset) {
  static_assert(std::is_trivially_copyable_v<Record>);
  const auto part = slice(bytes, offset, sizeof(Record));
  if (!part) return std::nullopt;
  Record record;
  std::memcpy(&record, part->data(), sizeof(Record));
  return record;
}

/// The zero-terminated text at `offset`; empty when it starts or runs outside.
inline std::string_view text_at(Bytes bytes, std::uint64_t offset) {
  if (offset >= bytes.size()) return {};
  const char* start = reinterpret_cast<const char*>(bytes.data()) + offset;
  const void* end = std::memchr(start, 0, bytes.size() - offset);
  if (end == nullptr) return {};
  return {start, static_cast<std::size_t>(static_cast<const char*>(end) - start)};
}

}  // namespace host
