/// Writes pictures into files while the flight goes on.
#pragma once

#include <condition_variable>
#include <deque>
#include <filesystem>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "host/drawing/painter.h"

namespace host {

class PictureWriter {
 public:
  /// `on_done` is called on the writer's thread after each picture: take_notes() then has something to
  /// say.
  PictureWriter(std::filesystem::path folder, std::function<void()> on_done);

  /// Writes what is still to be written.
  ~PictureWriter();
  PictureWriter(const PictureWriter&) = delete;
  PictureWriter& operator=(const PictureWriter&) = delete;

  void write(Canvas picture);

  /// A line for each picture that has been written since the last call, with its whole path, or for a
  /// failure.
  std::vector<std::string> take_notes();

 private:
  void work();
  std::string save(const Canvas& picture) const;

  std::filesystem::path folder_;
  std::function<void()> on_done_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<Canvas> waiting_;
  std::vector<std::string> notes_;
  bool ending_ = false;
  std::thread thread_;  ///< begins with the first picture
};

}  // namespace host
