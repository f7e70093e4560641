#include "host/files/read_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace host {
namespace {

// What is wrong, without the file's name.
struct Fault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

[[noreturn]] void cannot_be_read(int error) {
  throw Fault(std::string("cannot be read: ") + std::strerror(error));
}

[[noreturn]] void too_large(std::uintmax_t limit) {
  throw Fault("is larger than " + std::to_string(limit / mebibyte) + " MiB");
}

class OpenFile {
 public:
  // Without waiting for the other end of a pipe.
  explicit OpenFile(const std::filesystem::path& file)
      : descriptor_(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {
    if (descriptor_ < 0) cannot_be_read(errno);
  }
  ~OpenFile() { ::close(descriptor_); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  std::uintmax_t size(std::uintmax_t limit) const {
    struct stat status {};
    if (::fstat(descriptor_, &status) != 0) cannot_be_read(errno);
    if (S_ISDIR(status.st_mode)) cannot_be_read(EISDIR);
    if (!S_ISREG(status.st_mode)) throw Fault("is no regular file");
    const auto size = static_cast<std::uintmax_t>(status.st_size);
    if (size > limit) too_large(limit);
    return size;
  }

  // The file may have grown since it was measured.
  std::string text(std::uintmax_t limit) const {
    std::string text;
    text.reserve(static_cast<std::size_t>(size(limit)));
    std::array<char, 65536> part;
    for (;;) {
      const ssize_t count = ::read(descriptor_, part.data(), part.size());
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) cannot_be_read(errno);
      if (count == 0) return text;
      text.append(part.data(), static_cast<std::size_t>(count));
      if (text.size() > limit) too_large(limit);
    }
  }

 private:
  int descriptor_;
};

}  // namespace

std::string read_file(const std::filesystem::path& file, std::uintmax_t limit) {
  try {
    return OpenFile(file).text(limit);
  } catch (const Fault& fault) {
    throw FileFault(file.string() + ": " + fault.what());
  }
}

std::string fault_of_file(const std::filesystem::path& file, std::uintmax_t limit) {
  try {
    OpenFile(file).size(limit);
    return {};
  } catch (const Fault& fault) {
    return fault.what();
  }
}

}  // namespace host
