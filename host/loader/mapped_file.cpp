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

struct Descriptor {
  int number;
  ~Descriptor() {
    if (number >= 0) ::close(number);
  }
};

std::size_t regular_file_size(int descriptor) {
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) fail(errno);
  if (S_ISDIR(status.st_mode)) fail(EISDIR);
  if (!S_ISREG(status.st_mode)) fail(EINVAL);
  return static_cast<std::size_t>(status.st_size);
}

}  // namespace

MappedFile::MappedFile(const std::filesystem::path& file) {
  const Descriptor descriptor{::open(file.c_str(), O_RDONLY | O_CLOEXEC)};
  if (descriptor.number < 0) fail(errno);
  const std::size_t size = regular_file_size(descriptor.number);
  if (size == 0) return;
  void* start = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor.number, 0);
  if (start == MAP_FAILED) fail(errno);
  bytes_ = {static_cast<const std::byte*>(start), size};
}

MappedFile::~MappedFile() {
  if (!bytes_.empty()) ::munmap(const_cast<std::byte*>(bytes_.data()), bytes_.size());
}

MappedFile::MappedFile(MappedFile&& other) noexcept : bytes_(std::exchange(other.bytes_, {})) {}

MappedFile& MappedFile::operator=(MappedFile&& other) noexcept {
  std::swap(bytes_, other.bytes_);
  return *this;
}

}  // namespace host
