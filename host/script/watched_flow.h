/// A flow that is flown before a person's eyes, in a cockpit whose frames its owner runs.
#pragma once

#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "host/script/flow_session.h"
#include "host/sound/sound_book.h"

namespace host {

/// A flow is written as if it had the cockpit for itself. So it runs on a thread of its own, but only
/// while its owner waits for it in go_on(): never at the same time, and always between two frames. What
/// it does enters the cockpit through the owner's inputs, and is in their journal.
class WatchedFlow {
 public:
  /// `say` gets what the flow says. The inputs must outlive it. There is one at a time.
  WatchedFlow(CockpitInputs& inputs, std::filesystem::path flow, std::vector<Checklist> checklists,
              std::function<void(const std::string&)> say);

  /// Stops it where it is. What it held down is let go, and the readings that it held are free again.
  ~WatchedFlow();
  WatchedFlow(const WatchedFlow&) = delete;
  WatchedFlow& operator=(const WatchedFlow&) = delete;

  enum class Wish {
    frame,    ///< that a frame passes before it goes on
    gesture,  ///< to work what about_to_work() tells
    nothing,  ///< it has ended
  };

  /// Lets it do its part up to its next wish.
  Wish go_on();

  const Spot& about_to_work() const { return spot_; }

  /// "engine_start"
  std::string name() const { return file_.stem().string(); }

  /// Why it has ended: file, line and reason; empty when it came to its end.
  const std::string& failure() const { return failure_; }

  /// A message of the module's, for the flow to read.
  void add_message(const std::string& text) { session_.messages.push_back(text); }

 private:
  void run();
  void ask_for(Wish wish);
  FlowSurroundings surroundings(std::vector<Checklist> checklists,
                                std::function<void(const std::string&)> say);
  static void take_sound(const void* samples, std::size_t bytes, void* context);

  CockpitInputs& inputs_;
  std::filesystem::path file_;
  SoundBook sounds_;
  FlowSession session_;
  Spot spot_;
  std::string failure_;
  std::mutex mutex_;
  std::condition_variable turned_;
  bool flows_turn_ = false;
  bool stopping_ = false;
  Wish wish_ = Wish::frame;
  std::thread thread_;
};

}  // namespace host
