#include <fcntl.h>
#include <unistd.h>
#include <windows.h>

#include "platform/file_handles.h"
#include "platform/paths.h"

using platform::file_size;
using platform::HandleKind;

HANDLE CreateFileA(LPCSTR path, DWORD access, DWORD, LPSECURITY_ATTRIBUTES, DWORD disposition, DWORD,
                   HANDLE) {
  if (path == nullptr || access != GENERIC_READ || disposition != OPEN_EXISTING) {
    return INVALID_HANDLE_VALUE;
  }
  const auto found = platform::find_path(path);
  if (!found) return INVALID_HANDLE_VALUE;
  // Not to wait for the other end of a pipe of that name.
  const int descriptor = open(found->c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) return INVALID_HANDLE_VALUE;
  if (file_size(descriptor) < 0) {
    close(descriptor);
    return INVALID_HANDLE_VALUE;
  }
  return platform::new_handle(HandleKind::file, descriptor);
}

DWORD GetFileSize(HANDLE file, LPDWORD high) {
  const auto descriptor = platform::descriptor_of(file, HandleKind::file);
  const std::int64_t size = descriptor ? file_size(*descriptor) : -1;
  if (size < 0) return INVALID_FILE_SIZE;
  if (high != nullptr) *high = static_cast<DWORD>(size >> 32);
  return static_cast<DWORD>(size);
}

HANDLE CreateFileMappingA(HANDLE file, LPSECURITY_ATTRIBUTES, DWORD protection, DWORD size_high,
                          DWORD size_low, LPCSTR name) {
  const bool whole_file = size_high == 0 && size_low == 0;
  const auto descriptor = platform::descriptor_of(file, HandleKind::file);
  if (!descriptor || protection != PAGE_READONLY || !whole_file || name != nullptr) return nullptr;
  if (file_size(*descriptor) <= 0) return nullptr;
  const int own = fcntl(*descriptor, F_DUPFD_CLOEXEC, 0);
  return own < 0 ? nullptr : platform::new_handle(HandleKind::mapping, own);
}
