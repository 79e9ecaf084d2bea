// The dress of the information windows.
#pragma once

#include <span>

#include "look/dress.h"

namespace orvane {

std::span<const Dress> InformationDresses();

}  // namespace orvane
