#include "host/script/watched_flow.h"

#include <stdexcept>
#include <utility>

#include "host/script/flow_api.h"
#include "platform/platform_host.h"

namespace host {

WatchedFlow::WatchedFlow(CockpitInputs& inputs, std::filesystem::path flow,
                         std::vector<Checklist> checklists, std::function<void(const std::string&)> say)
    : inputs_(inputs),
      file_(std::move(flow)),
      sounds_(inputs.cockpit().module().file().parent_path() / "Sound"),
      session_(inputs, surroundings(std::move(checklists), std::move(say))),
      thread_([this] { run(); }) {
  platform_on_sound(take_sound, this);
}

WatchedFlow::~WatchedFlow() {
  stopping_ = true;
  while (go_on() != Wish::nothing) continue;
  thread_.join();
  platform_on_sound(nullptr, nullptr);
  if (inputs_.holding()) inputs_.take(input::Release{});
  for (const std::uint32_t token : inputs_.cockpit().aircraft().held_tokens())
    inputs_.take(input::ReleaseToken{token});
}

WatchedFlow::Wish WatchedFlow::go_on() {
  std::unique_lock lock(mutex_);
  if (wish_ == Wish::nothing) return wish_;
  flows_turn_ = true;
  turned_.notify_one();
  turned_.wait(lock, [this] { return !flows_turn_; });
  return wish_;
}

// On the flow's thread, as all that follows.
void WatchedFlow::ask_for(Wish wish) {
  std::unique_lock lock(mutex_);
  wish_ = wish;
  flows_turn_ = false;
  turned_.notify_one();
  turned_.wait(lock, [this] { return flows_turn_; });
  if (stopping_) throw std::runtime_error("taken over");
}

void WatchedFlow::run() {
  try {
    {
      std::unique_lock lock(mutex_);
      turned_.wait(lock, [this] { return flows_turn_; });
      if (stopping_) throw std::runtime_error("never begun");
    }
    session_.frame();  // the cockpit stands before the flow takes a seat
    LuaRunner runner;
    bind_flow_api(runner, session_);
    runner.run(file_);
  } catch (const std::exception& error) {
    failure_ = error.what();
  }
  const std::lock_guard lock(mutex_);
  wish_ = Wish::nothing;
  flows_turn_ = false;
  turned_.notify_one();
}

FlowSurroundings WatchedFlow::surroundings(std::vector<Checklist> checklists,
                                           std::function<void(const std::string&)> say) {
  FlowSurroundings around;
  around.say = std::move(say);
  around.checklists = std::move(checklists);
  around.pass_frame = [this] { ask_for(Wish::frame); };
  around.before_gesture = [this](const Spot& spot) {
    spot_ = spot;
    ask_for(Wish::gesture);
  };
  return around;
}

void WatchedFlow::take_sound(const void* samples, std::size_t bytes, void* context) {
  auto* flow = static_cast<WatchedFlow*>(context);
  const std::string name = flow->sounds_.name_of({static_cast<const std::byte*>(samples), bytes});
  flow->session_.sounds.push_back({name, flow->session_.seconds()});
}

}  // namespace host
