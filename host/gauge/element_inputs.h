/// Where an element takes its values from.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "host/gauge/element_state.h"
#include "host/gauge/token_source.h"

namespace host {

/// What an element's record says about its values, whatever its kind; read once. The record must
/// outlive it.
class ElementInputs {
 public:
  explicit ElementInputs(Element& element);

  Element& element() const { return *element_; }

  /// Fills the sources, calls the routines and keeps what they return. A source stands in for a
  /// routine that is not there.
  void evaluate(const TokenSource& tokens, ElementState& state) const;

  /// Whether both show the same thing wherever they stand: one kind and bitmap, the same routines,
  /// and without a routine the same tokens.
  bool same_as(const ElementInputs& other) const;

 private:
  void add_source(TokenVariable& source) { sources_[source_count_++] = &source; }
  void add(TokenVariable& source, ValueRoutine routine);

  Element* element_;
  std::array<TokenVariable*, 3> sources_{};
  std::array<ValueRoutine, 3> routines_{};
  std::size_t source_count_ = 0;
  std::size_t value_count_ = 0;
};

}  // namespace host
