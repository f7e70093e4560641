#include "host/window/picture_writer.h"

#include <cstdio>
#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;

fs::path free_name(const fs::path& folder) {
  for (int number = 1;; ++number) {
    char name[32];
    std::snprintf(name, sizeof name, "tarnvale-%03d.png", number);
    std::error_code error;
    if (!fs::exists(folder / name, error)) return folder / name;
  }
}

}  // namespace

PictureWriter::PictureWriter(fs::path folder, std::function<void()> on_done)
    : folder_(std::move(folder)), on_done_(std::move(on_done)) {}

PictureWriter::~PictureWriter() {
  {
    const std::scoped_lock lock(mutex_);
    ending_ = true;
  }
  changed_.notify_one();
  if (thread_.joinable()) thread_.join();
}

void PictureWriter::write(Canvas picture) {
  const std::scoped_lock lock(mutex_);
  waiting_.push_back(std::move(picture));
  if (!thread_.joinable()) thread_ = std::thread([this] { work(); });
  changed_.notify_one();
}

std::vector<std::string> PictureWriter::take_notes() {
  const std::scoped_lock lock(mutex_);
  return std::exchange(notes_, {});
}

void PictureWriter::work() {
  for (std::unique_lock lock(mutex_);;) {
    changed_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
    if (waiting_.empty()) return;
    const Canvas picture = std::move(waiting_.front());
    waiting_.pop_front();
    lock.unlock();
    std::string note = save(picture);
    lock.lock();
    notes_.push_back(std::move(note));
    on_done_();
  }
}

std::string PictureWriter::save(const Canvas& picture) const {
  try {
    std::error_code unwritable;  // then writing the picture says so
    fs::create_directories(folder_, unwritable);
    const fs::path file = fs::absolute(free_name(folder_)).lexically_normal();
    write_png(picture, file.string());
    return "Saved " + file.string();
  } catch (const std::exception& error) {
    return error.what();
  }
}

}  // namespace host
