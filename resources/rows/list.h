/// A short list that can stand in a `constexpr` row.
#pragma once

#include <cstddef>
#include <initializer_list>

namespace artwork {

/// At most `most` items; one too many does not compile.
template <class Item, std::size_t most>
class List {
 public:
  constexpr List() = default;
  constexpr List(std::initializer_list<Item> items) {
    for (const Item& item : items) items_[count_++] = item;
  }

  constexpr const Item* begin() const { return items_; }
  constexpr const Item* end() const { return items_ + count_; }
  constexpr std::size_t size() const { return count_; }
  constexpr const Item& operator[](std::size_t index) const { return items_[index]; }

 private:
  Item items_[most]{};
  std::size_t count_ = 0;
};

}  // namespace artwork
