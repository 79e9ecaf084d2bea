// The dress of the information windows.
#pragma once

#include <span>

#include "desktop/look/dress.h"

namespace orvane {

std::span<const Dress> InformationDresses();

}  // namespace orvane
