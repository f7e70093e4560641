#include "host/files/output.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <string>
#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;

// An errno on its way to the message.
struct WriteError {
  int number;
};

class Descriptor {
 public:
  Descriptor(const fs::path& file, int flags)
      : number_(::open(file.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | flags, 0666)) {
    if (number_ < 0) throw WriteError{errno};
  }
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  void write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t written = ::write(number_, bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) throw WriteError{errno};
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
  }

  // Some file systems tell only now that there was no room.
  void close() {
    if (::close(std::exchange(number_, -1)) != 0) throw WriteError{errno};
  }

 private:
  int number_;
};

void write_straight(const fs::path& file, std::string_view bytes) {
  Descriptor out(file, O_TRUNC);
  out.write(bytes);
  out.close();
}

void write_beside(const fs::path& file, std::string_view bytes) {
  const fs::path part = file.string() + ".part-" + std::to_string(::getpid());
  try {
    Descriptor out(part, O_CREAT | O_TRUNC);
    out.write(bytes);
    out.close();
    if (::rename(part.c_str(), file.c_str()) != 0) throw WriteError{errno};
  } catch (const WriteError&) {
    ::unlink(part.c_str());
    throw;
  }
}

// Two names of one file that is there, or two equal names of one that is not.
bool same_file(const fs::path& a, const fs::path& b) {
  if (a.empty() || b.empty()) return false;
  std::error_code error;
  if (fs::equivalent(a, b, error)) return fs::is_regular_file(a, error);
  return !fs::exists(a, error) && fs::weakly_canonical(a, error) == fs::weakly_canonical(b, error);
}

void check_output(const NamedFile& output, const NamedFile& other) {
  if (same_file(output.file, other.file))
    throw std::runtime_error(output.file.string() + ": " + output.what + " would write over " +
                             other.what);
}

// The descriptor stays open: whoever reads must not take its end for the end of what he gets.
void check_pipe(const NamedFile& output) {
  std::error_code error;
  if (!fs::is_fifo(output.file, error)) return;
  if (::open(output.file.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC) < 0)
    throw std::runtime_error(output.file.string() + ": is a pipe that nobody reads");
}

}  // namespace

void write_whole_file(const fs::path& file, std::string_view bytes) {
  std::error_code error;
  const bool there = fs::exists(file, error);
  try {
    if (there && !fs::is_regular_file(file, error)) return write_straight(file, bytes);
    // A file that must not be written to is not replaced either.
    if (there && ::access(file.c_str(), W_OK) != 0) throw WriteError{errno};
    const fs::path target = there ? fs::canonical(file, error) : file;
    write_beside(error ? file : target, bytes);
  } catch (const WriteError& failed) {
    throw std::runtime_error(file.string() + ": cannot be written: " + std::strerror(failed.number));
  }
}

void check_outputs(const std::vector<NamedFile>& outputs, const std::vector<NamedFile>& inputs) {
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    check_pipe(outputs[i]);
    for (const NamedFile& input : inputs) check_output(outputs[i], input);
    for (std::size_t k = 0; k < i; ++k) check_output(outputs[i], outputs[k]);
  }
}

}  // namespace host
