#include "platform/file_handles.h"

#include <sys/stat.h>
#include <unistd.h>

#include <map>

namespace platform {
namespace {

struct OpenHandle {
  HandleKind kind;
  int descriptor;
};

/// Handles are numbers that are not used twice, so that a closed one is never taken for a new one.
std::map<std::uintptr_t, OpenHandle>& open_handles() {
  static std::map<std::uintptr_t, OpenHandle> handles;
  return handles;
}

}  // namespace

HANDLE new_handle(HandleKind kind, int descriptor) {
  static std::uintptr_t last = 0;
  last += 4;
  open_handles()[last] = {kind, descriptor};
  return reinterpret_cast<HANDLE>(last);
}

std::optional<int> descriptor_of(HANDLE handle, HandleKind kind) {
  const auto found = open_handles().find(reinterpret_cast<std::uintptr_t>(handle));
  if (found == open_handles().end() || found->second.kind != kind) return std::nullopt;
  return found->second.descriptor;
}

std::int64_t file_size(int descriptor) {
  struct stat status {};
  if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return -1;
  return status.st_size;
}

}  // namespace platform

BOOL CloseHandle(HANDLE handle) {
  auto& handles = platform::open_handles();
  const auto found = handles.find(reinterpret_cast<std::uintptr_t>(handle));
  if (found == handles.end()) return FALSE;
  close(found->second.descriptor);
  handles.erase(found);
  return TRUE;
}
