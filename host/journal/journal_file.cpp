#include "host/journal/journal_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <utility>

namespace host {

JournalFile::JournalFile(const std::filesystem::path& file, int flags)
    : path_(file), descriptor_(open(file.c_str(), O_RDWR | O_APPEND | O_CLOEXEC | flags, 0644)) {
  if (descriptor_ < 0)
    fail(errno == ENOENT && !(flags & O_CREAT) ? "there is no such journal"
                                               : "cannot write the journal");
  // Two programs that write into one journal would spoil it for both.
  if (flock(descriptor_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    close(std::exchange(descriptor_, -1));
    fail("another cockpit is writing this journal");
  }
}

JournalFile JournalFile::create(const std::filesystem::path& file) {
  JournalFile made(file, O_CREAT);
  made.cut(0);
  return made;
}

JournalFile JournalFile::reopen(const std::filesystem::path& file) { return {file, 0}; }

JournalFile::JournalFile(JournalFile&& other) noexcept
    : path_(std::move(other.path_)), descriptor_(std::exchange(other.descriptor_, -1)) {}

JournalFile& JournalFile::operator=(JournalFile&& other) noexcept {
  std::swap(path_, other.path_);
  std::swap(descriptor_, other.descriptor_);
  return *this;
}

JournalFile::~JournalFile() {
  if (descriptor_ >= 0) close(descriptor_);
}

void JournalFile::fail(const char* what) const {
  throw std::runtime_error(path_.string() + ": " + what);
}

void JournalFile::append(std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(descriptor_, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) fail("cannot write the journal any more");
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

void JournalFile::cut(std::uintmax_t size) {
  if (ftruncate(descriptor_, static_cast<off_t>(size)) != 0) fail("cannot write the journal");
}

}  // namespace host
