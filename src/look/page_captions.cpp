#include "look/page_captions.h"

#include <array>

namespace orvane {
namespace {

constexpr auto kCaptions = std::to_array<PageCaption>({
    {"Mol_Name", {13, 600}, Side::Left, true},
    {"Str_Entm", {13, 600}, Side::Centre, false},
    {"L_Form", {12, 600}, Side::Centre, false},
    {"R_Form", {12, 600}, Side::Centre, false},
    {"AA_name", {12, 600}, Side::Left, true},
});

}  // namespace

std::span<const PageCaption> PageCaptions() { return kCaptions; }

}  // namespace orvane
