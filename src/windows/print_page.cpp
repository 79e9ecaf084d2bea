#include "windows/print_page.h"

#include <array>

#include "controls/spoken.h"

namespace orvane {
namespace {

using enum ControlKind;

// Places in twips on a page of 6600 by 7200.
// clang-format off
constexpr auto kRows = std::to_array<ControlRow>({
    {.Name = "Form_Print", .Kind = Window, .Caption = "Form_Print", .At = {0, 0, 6600, 7200}, .Visible = false},
    {.Name = "Mol_Name", .Kind = Panel,    .At = { 600,  840, 2070,  315}, .Visible = false},
    {.Name = "Str_Entm", .Kind = Panel,    .Caption = "Enantimers",        .At = {2160, 1320, 2145,  300}, .Visible = false},
    {.Name = "L_Form",   .Kind = Panel,    .Caption = "Left Form (L-AA)",  .At = { 600, 1800, 2295,  285}},
    {.Name = "R_Form",   .Kind = Panel,    .Caption = "Right Form (D-AA)", .At = {3720, 1800, 2295,  285}},
    {.Name = "L_Img",    .Kind = ImageBox, .At = { 120, 2160, 3135, 3135}, .Spoken = "Left view"},
    {.Name = "R_Img",    .Kind = ImageBox, .At = {3360, 2160, 3135, 3135}, .Spoken = "Right view"},
    {.Name = "AA_name",  .Kind = Panel,    .Caption = "Right Form (D-AA)", .At = { 120, 5520, 2070,  285}},
    {.Name = "Image1",   .Kind = ImageBox, .At = { 600, 1200, 5400, 5400}, .Visible = false, .Spoken = "Picture of the molecule"},
    {.Name = "Panel3D4", .Kind = Panel,    .At = {0, 0, 480, 480}, .Visible = false, .Role = SpokenRole::Group},
    {.Name = "OVN_Icon", .Kind = ImageBox, .Parent = "Panel3D4", .At = {0, 0, 480, 480}, .Spoken = "Icon of Orvane"},
    {.Name = "MMControl1", .Kind = Ornament, .Visible = false},
});
// clang-format on

}  // namespace

PrintPage::PrintPage() : Window(kRows, "Form_Print.") {}

}  // namespace orvane
