// How the information windows look.
#pragma once

#include <span>

#include "look/dress.h"

namespace orvane {

std::span<const Dress> InformationDresses();

}  // namespace orvane
