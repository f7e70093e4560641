#include "host/loader/mapped_file.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace host {
namespace {

[[noreturn]] void fail(int error) { throw std::system_error(error, std::generic_category()); }

std::size_t regular_file_size(int descriptor) {
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) fail(errno);
  if (S_ISDIR(status.st_mode)) fail(EISDIR);
  if (!S_ISREG(status.st_mode)) fail(EINVAL);
  if (status.st_size > static_cast<off_t>(MappedFile::largest)) fail(EFBIG);
  return static_cast<std::size_t>(status.st_size);
}

}  // namespace

// Without waiting for the other end of a pipe.
MappedFile::MappedFile(const std::filesystem::path& file)
    : MappedFile(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
  if (descriptor_ < 0) fail(errno);
  const std::size_t size = regular_file_size(descriptor_);
  if (size == 0) return;
  void* start = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor_, 0);
  if (start == MAP_FAILED) fail(errno);
  bytes_ = {static_cast<const std::byte*>(start), size};
}

MappedFile::~MappedFile() {
  if (!bytes_.empty()) ::munmap(const_cast<std::byte*>(bytes_.data()), bytes_.size());
  if (descriptor_ >= 0) ::close(descriptor_);
}

std::optional<std::vector<std::byte>> MappedFile::copy(std::span<const std::byte> part) const {
  std::vector<std::byte> bytes(part.size());
  std::size_t done = 0;
  while (done < bytes.size()) {
    const off_t at = part.data() - bytes_.data() + static_cast<off_t>(done);
    const ssize_t count = ::pread(descriptor_, bytes.data() + done, bytes.size() - done, at);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return std::nullopt;
    done += static_cast<std::size_t>(count);
  }
  return bytes;
}

void MappedFile::forget() const {
  if (!bytes_.empty()) ::madvise(const_cast<std::byte*>(bytes_.data()), bytes_.size(), MADV_DONTNEED);
}

std::string MappedFile::fault(const std::error_code& error) {
  if (error.value() == EINVAL) return "is no regular file";
  if (error.value() == EFBIG) return "is larger than " + std::to_string(largest >> 20) + " MiB";
  return "cannot be read: " + error.message();
}

MappedFile::MappedFile(MappedFile&& other) noexcept
    : bytes_(std::exchange(other.bytes_, {})), descriptor_(std::exchange(other.descriptor_, -1)) {}

MappedFile& MappedFile::operator=(MappedFile&& other) noexcept {
  std::swap(bytes_, other.bytes_);
  std::swap(descriptor_, other.descriptor_);
  return *this;
}

}  // namespace host
