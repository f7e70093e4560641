/// Where a gauge's readings come from.
#pragma once

#include <cstdint>

namespace host {

/// The values of host token variables. Numbers nobody knows read 0.
class TokenSource {
 public:
  virtual ~TokenSource() = default;
  virtual double token(std::uint32_t number) const = 0;
  /// Whether the system behind a failure key has failed.
  virtual bool failed(std::uint32_t key) const = 0;
  /// Whether any system has.
  virtual bool any_failed() const = 0;
};

}  // namespace host
