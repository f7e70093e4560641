/// The identifications of radio stations in the crew's ears: each as long as it is heard.
#pragma once

#include <dsound.h>

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// Plays on the platform's sound device, beside the module's sounds and into the same mix. Without a
/// device it is silent. All calls on one thread.
class Identifications {
 public:
  /// Call after every frame with what each receiver hears, empty for nothing, and the simulated time in
  /// seconds. A station sends all the time: tuned in, it is heard from where it is in its
  /// identification.
  void update(std::span<const std::string_view> heard, double seconds);

  /// Nothing is heard until the next update.
  void silence() { receivers_.clear(); }

 private:
  struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
  };
  template <typename Object>
  using Owned = std::unique_ptr<Object, Release>;

  struct Receiver {
    std::string text;
    Owned<IDirectSoundBuffer> buffer;
  };

  void listen(Receiver& receiver, std::string_view text, double seconds);
  Owned<IDirectSoundBuffer> station(std::string_view text);

  Owned<IDirectSound> sound_;
  double next_try_ = 0;  ///< seconds
  std::vector<Receiver> receivers_;
};

}  // namespace host
