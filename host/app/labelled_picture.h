/// A panel's picture with numbered click areas, and below it what the numbers stand for.
#pragma once

#include "host/panel/panel_picture.h"

namespace host {

/// The picture's canvas, as it was drawn, with a number beside every click area of the window and a
/// legend below: its words from the names file, else its box, and how it is worked where a plain click
/// does not.
Canvas labelled_picture(const Cockpit& cockpit, const PanelPicture& picture);

}  // namespace host
