/// Text from outside in messages.
#pragma once

#include <string>
#include <string_view>

namespace host {

/// `text` fit for one line of a message: what cannot be printed is a question mark, and of more than
/// `most` bytes the beginning and the end stand there.
std::string shortened(std::string_view text, std::size_t most = 60);

/// The same between quotation marks.
inline std::string in_quotes(std::string_view text) { return "'" + shortened(text) + "'"; }

}  // namespace host
