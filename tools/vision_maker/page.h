// The text of docs/colour-vision.md, its tables computed from the colours of the program.
#pragma once

#include <string>

namespace orvane::vision {

std::string PageText();

}  // namespace orvane::vision
