/// What the file calls' handles stand for.
#pragma once

#include <windows.h>

#include <optional>

namespace platform {

enum class HandleKind { file, mapping };

/// Gives a handle for an open descriptor, which CloseHandle closes.
HANDLE new_handle(HandleKind kind, int descriptor);

/// The descriptor behind a handle; nothing if it is not open or of another kind.
std::optional<int> descriptor_of(HANDLE handle, HandleKind kind);

}  // namespace platform
