/// One function of several, for visiting a variant.
#pragma once

namespace artwork {

template <class... Functions>
struct overloaded : Functions... {
  using Functions::operator()...;
};
template <class... Functions>
overloaded(Functions...) -> overloaded<Functions...>;

}  // namespace artwork
