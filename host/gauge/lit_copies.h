/// Which elements of a gauge stand in for earlier ones.
///
/// A gauge that changes under panel lighting carries its elements twice: behind the background a
/// first set and then a lit one, of equal length. A lit picture may stand a few pixels beside the
/// one that it covers, because its glow reaches farther.
#pragma once

#include <span>
#include <vector>

#include "host/gauge/element_inputs.h"

namespace host {

/// How far a copy may stand from the element it covers, in background pixels, on each axis: a glow
/// makes a picture wider and higher by the same margin, so that its corner moves by as much on both.
inline constexpr int farthest_copy = 8;

/// The later elements that cover one: it shows only while neither of them does. The number of
/// elements stands for none.
struct Covers {
  std::size_t lit;         ///< the element's own copy in the later half
  std::size_t same_place;  ///< the next copy at exactly its place, in whatever set
};

/// The covers of a gauge's elements, which are in chain order with the background first.
///
/// Equal elements that stand near each other in one set, such as two rows of one lamp, do not cover
/// each other: they find their copies in the later half one to one and in their order, as many as can
/// be and then the nearest. Of an odd number the one in the middle belongs to the first half.
std::vector<Covers> find_covers(std::span<const ElementInputs> elements);

}  // namespace host
