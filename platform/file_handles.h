/// What the file calls' handles stand for.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

namespace platform {

enum class HandleKind { file, mapping };

/// Gives a handle for an open descriptor, which CloseHandle closes.
HANDLE new_handle(HandleKind kind, int descriptor);

/// The descriptor behind a handle; nothing if it is not open or of another kind.
std::optional<int> descriptor_of(HANDLE handle, HandleKind kind);

/// The size of an ordinary file in bytes; -1 for anything else.
std::int64_t file_size(int descriptor);

}  // namespace platform
