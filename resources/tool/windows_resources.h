/// The bitmaps in the form in which a Windows library carries them.
#pragma once

#include "resources/tool/section.h"

namespace artwork {

/// A compiled resource file (.res) with the bitmaps of a section: numbered ones by number, named ones
/// by name, all of them for any language. Ends the program for a number that a resource cannot have.
Bytes windows_resources(const Bytes& section);

}  // namespace artwork
