// Whether the windows show what the desk says.
#pragma once

#include <string>

#include "desktop/windows/skin.h"

namespace orvane {

// Empty: they do; else the first thing that differs. `thorough` compares the pictures' pixels, too.
std::string WhatDiffers(Skin& skin, bool thorough);

}  // namespace orvane
