#include "windows/plot_window_table.h"

#include <array>

#include "controls/spoken.h"

namespace orvane {
namespace {

using enum ControlKind;

// Places in twips. The names on the map lie within the area that holds them; Greek letters are laid
// over the gaps of the captions beside them.
// clang-format off
constexpr auto kRows = std::to_array<ControlRow>({
    {.Name = "Ramachandran", .Kind = Window, .Caption = "Ramachandran", .At = {1680, 60, 6135, 7125}, .Visible = false},
    {.Name = "RamPlt_H",  .Kind = Frame, .Caption = "Ramachandran Plot", .At = {0, 0, 6135, 7125}, .Tip = "Rest on the map to read its names"},

    // The map: phi from left to right, psi from bottom to top.
    {.Name = "Area(0)", .Kind = PictureBox, .Parent = "RamPlt_H", .At = { 960, 1755, 2110, 2085}, .Tip = "Rest on a mark to read its name", .Spoken = "Phi below 0, psi above 0"},
    {.Name = "Area(1)", .Kind = PictureBox, .Parent = "RamPlt_H", .At = { 960, 3855, 2110, 2085}, .Tip = "Rest on a mark to read its name", .Spoken = "Phi and psi below 0"},
    {.Name = "Area(2)", .Kind = PictureBox, .Parent = "RamPlt_H", .At = {3090, 3855, 2110, 2085}, .Tip = "Rest on a mark to read its name", .Spoken = "Phi above 0, psi below 0"},
    {.Name = "Area(3)", .Kind = PictureBox, .Parent = "RamPlt_H", .At = {3090, 1755, 2110, 2085}, .Tip = "Rest on a mark to read its name", .Spoken = "Phi and psi above 0"},

    // Names of conformations, hidden until the pointer is on their mark.
    {.Name = "b_sheet(0)", .Kind = Label, .Parent = "Area(0)", .Caption = "b",              .At = { 480, 1245,  120, 180}, .Visible = false, .Tip = "Read the name of the mark", .Spoken = "beta", .Role = SpokenRole::Decoration},
    {.Name = "b_sheet(1)", .Kind = Label, .Parent = "Area(0)", .Caption = "-pleated sheet", .At = { 570, 1245, 1080, 165}, .Visible = false, .Tip = "Read the name of the mark", .Spoken = "beta pleated sheet"},
    {.Name = "b_sheet(2)", .Kind = Label, .Parent = "Area(0)", .Caption = "Parallel",       .At = { 720, 1080,  585, 165}, .Visible = false, .Tip = "Read the name of the mark"},
    {.Name = "b_sheet(3)", .Kind = Label, .Parent = "Area(0)", .Caption = "-pleated sheet", .At = { 225,  285, 1080, 165}, .Visible = false, .Tip = "Read the name of the mark", .Spoken = "beta pleated sheet"},
    {.Name = "b_sheet(4)", .Kind = Label, .Parent = "Area(0)", .Caption = "b",              .At = { 135,  285,  120, 180}, .Visible = false, .Tip = "Read the name of the mark", .Spoken = "beta", .Role = SpokenRole::Decoration},
    {.Name = "b_sheet(5)", .Kind = Label, .Parent = "Area(0)", .Caption = "Antiparallel",   .At = { 270,  120,  900, 165}, .Visible = false, .Tip = "Read the name of the mark"},
    // From (1740, 300) to (2100, 195): the mark lies near the right edge, its name in the next area.
    {.Name = "CoLn",       .Kind = Line,  .Parent = "Area(0)",                              .At = {1740,  195,  360, 105}, .Visible = false},
    {.Name = "R_Alf(0)", .Kind = Label, .Parent = "Area(1)", .Caption = "-Helix(right-handed)", .At = { 225,  960, 1530, 165}, .Visible = false, .Tip = "Read the name of the mark", .Spoken = "alpha helix, right-handed"},
    {.Name = "R_Alf(1)", .Kind = Label, .Parent = "Area(1)", .Caption = "a",                    .At = { 120,  945,  120, 180}, .Visible = false, .Tip = "Read the name of the mark", .Spoken = "alpha", .Role = SpokenRole::Decoration},
    {.Name = "R_Alf(2)", .Kind = Label, .Parent = "Area(1)", .Caption = "3  -Helix",            .At = {1425,   90,  645, 165}, .Visible = false, .Tip = "Read the name of the mark", .Spoken = "3-10 helix"},
    {.Name = "R_Alf(3)", .Kind = Label, .Parent = "Area(1)", .Caption = "10",                   .At = {1470,  195,  195, 150}, .Visible = false, .Tip = "Read the name of the mark", .Role = SpokenRole::Decoration},
    {.Name = "FEC",      .Kind = Label, .Parent = "Area(1)", .Caption = "Fully extended chain", .At = { 120, 1800, 1575, 165}, .Visible = false, .Tip = "Read the name of the mark"},
    {.Name = "L_Alf(0)", .Kind = Label, .Parent = "Area(3)", .Caption = "-Helix",               .At = { 975,  825,  465, 165}, .Visible = false, .Tip = "Read the name of the mark", .Spoken = "alpha helix"},
    {.Name = "L_Alf(1)", .Kind = Label, .Parent = "Area(3)", .Caption = "a",                    .At = { 870,  825,  120, 180}, .Visible = false, .Tip = "Read the name of the mark", .Spoken = "alpha", .Role = SpokenRole::Decoration},
    {.Name = "L_Alf(2)", .Kind = Label, .Parent = "Area(3)", .Caption = "(left-handed)",        .At = { 750, 1020,  990, 165}, .Visible = false, .Tip = "Read the name of the mark"},
    {.Name = "Collag",   .Kind = Label, .Parent = "Area(3)", .Caption = "Collagen helix",       .At = {   0,  120, 1065, 165}, .Visible = false, .Tip = "Read the name of the mark"},

    // Legend.
    {.Name = "Label1(0)", .Kind = Label, .Parent = "RamPlt_H", .Caption = "Normaly observed     ,      values.",              .At = {960, 1035, 2865, 218}, .Tip = "Read what this colour stands for", .Spoken = "Normally observed phi, psi values"},
    {.Name = "Label1(1)", .Kind = Label, .Parent = "RamPlt_H", .Caption = "Outer limits of    ,     values for Ala residue.", .At = {960, 1260, 3690, 218}, .Tip = "Read what this colour stands for", .Spoken = "Outer limits of phi, psi values for Ala residue"},
    {.Name = "Label1(2)", .Kind = Label, .Parent = "RamPlt_H", .Caption = "Forbiden values of     and    .",                  .At = {960, 1485, 2505, 218}, .Tip = "Read what this colour stands for", .Spoken = "Forbidden values of phi and psi"},
    {.Name = "Label5(1)", .Kind = Label, .Parent = "RamPlt_H", .Caption = "f", .At = {2565,  960, 150, 255}, .Tip = "Read what this colour stands for", .Spoken = "phi", .Role = SpokenRole::Decoration},
    {.Name = "Label6(1)", .Kind = Label, .Parent = "RamPlt_H", .Caption = "j", .At = {2800,  960, 150, 255}, .Tip = "Read what this colour stands for", .Spoken = "psi", .Role = SpokenRole::Decoration},
    {.Name = "Label5(2)", .Kind = Label, .Parent = "RamPlt_H", .Caption = "f", .At = {2160, 1200, 150, 255}, .Tip = "Read what this colour stands for", .Spoken = "phi", .Role = SpokenRole::Decoration},
    {.Name = "Label6(2)", .Kind = Label, .Parent = "RamPlt_H", .Caption = "j", .At = {2380, 1190, 150, 255}, .Tip = "Read what this colour stands for", .Spoken = "psi", .Role = SpokenRole::Decoration},
    {.Name = "Label4(3)", .Kind = Label, .Parent = "RamPlt_H", .Caption = "f", .At = {2540, 1410, 150, 255}, .Tip = "Read what this colour stands for", .Spoken = "phi", .Role = SpokenRole::Decoration},
    {.Name = "Label6(3)", .Kind = Label, .Parent = "RamPlt_H", .Caption = "j", .At = {3030, 1410, 150, 255}, .Tip = "Read what this colour stands for", .Spoken = "psi"},

    // Scale marks, each with its degree mark after it.
    {.Name = "Degrs(0)", .Kind = Panel, .Parent = "RamPlt_H", .Caption = "180",  .At = { 600, 1830, 285, 195}, .Tip = "Read the angle at this edge", .Spoken = "180 degrees"},
    {.Name = "Degrs(1)", .Kind = Panel, .Parent = "RamPlt_H", .Caption = "o",    .At = { 875, 1755,  85, 135}, .Tip = "Read the angle at this edge", .Spoken = "degrees", .Role = SpokenRole::Decoration},
    {.Name = "Degrs(2)", .Kind = Panel, .Parent = "RamPlt_H", .Caption = "180",  .At = {4995, 6060, 285, 195}, .Tip = "Read the angle at this edge", .Spoken = "180 degrees"},
    {.Name = "Degrs(3)", .Kind = Panel, .Parent = "RamPlt_H", .Caption = "o",    .At = {5270, 5985,  85, 135}, .Tip = "Read the angle at this edge", .Spoken = "degrees", .Role = SpokenRole::Decoration},
    {.Name = "Degrs(4)", .Kind = Panel, .Parent = "RamPlt_H", .Caption = "-180", .At = { 600, 6060, 330, 195}, .Tip = "Read the angle at this edge", .Spoken = "-180 degrees"},
    {.Name = "Degrs(5)", .Kind = Panel, .Parent = "RamPlt_H", .Caption = "o",    .At = { 920, 5985,  85, 135}, .Tip = "Read the angle at this edge", .Spoken = "degrees", .Role = SpokenRole::Decoration},
    {.Name = "Degrs(6)", .Kind = Panel, .Parent = "RamPlt_H", .Caption = "0",    .At = { 765, 3765, 105, 195}, .Tip = "Read the angle at this edge", .Spoken = "0 degrees"},
    {.Name = "Degrs(7)", .Kind = Panel, .Parent = "RamPlt_H", .Caption = "o",    .At = { 865, 3690,  85, 135}, .Tip = "Read the angle at this edge", .Spoken = "degrees", .Role = SpokenRole::Decoration},
    {.Name = "Degrs(8)", .Kind = Panel, .Parent = "RamPlt_H", .Caption = "0",    .At = {3000, 6060, 105, 195}, .Tip = "Read the angle at this edge", .Spoken = "0 degrees"},
    {.Name = "Degrs(9)", .Kind = Panel, .Parent = "RamPlt_H", .Caption = "o",    .At = {3100, 5985,  85, 135}, .Tip = "Read the angle at this edge", .Spoken = "degrees", .Role = SpokenRole::Decoration},

    // Axis names: under the map, and beside it turned to read upwards.
    {.Name = "Label5(0)", .Kind = Label, .Parent = "RamPlt_H", .Caption = "f",         .At = {2640, 6420, 225, 330}, .Tip = "Read what runs from left to right", .Spoken = "phi"},
    {.Name = "Label10",   .Kind = Label, .Parent = "RamPlt_H", .Caption = "(N - C   )", .At = {2910, 6450, 780, 255}, .Tip = "Read what runs from left to right", .Spoken = "N to C alpha"},
    {.Name = "Label11",   .Kind = Label, .Parent = "RamPlt_H", .Caption = "a",         .At = {3450, 6510, 120, 195}, .Tip = "Read what runs from left to right", .Spoken = "alpha", .Role = SpokenRole::Decoration},
    {.Name = "Label6(0)", .Kind = Label, .Parent = "RamPlt_H", .Caption = "j",         .At = { 330, 4125, 330, 225}, .Tip = "Read what runs from bottom to top", .Spoken = "psi"},
    {.Name = "Label8",    .Kind = Label, .Parent = "RamPlt_H", .Caption = "(C - C   )", .At = { 360, 3300, 255, 780}, .Tip = "Read what runs from bottom to top", .Spoken = "C to C alpha"},
    {.Name = "Label9",    .Kind = Label, .Parent = "RamPlt_H", .Caption = "a",         .At = { 420, 3450, 195, 120}, .Tip = "Read what runs from bottom to top", .Spoken = "alpha", .Role = SpokenRole::Decoration},

    {.Name = "RamPlt_ArP", .Kind = Ornament, .Parent = "RamPlt_H", .At = {345, 6525, 330, 330}},
    {.Name = "Line1",      .Kind = Line,     .Parent = "RamPlt_ArP", .At = {0, 0, 0, 330}},
    {.Name = "Line2",      .Kind = Line,     .Parent = "RamPlt_ArP", .At = {0, 315, 330, 0}},
    {.Name = "OVN_Icon",   .Kind = ImageBox, .Parent = "RamPlt_H", .At = {0, 0, 480, 480}, .Visible = false, .Tip = "Know Orvane by this sign"},
});
// clang-format on

}  // namespace

std::span<const ControlRow> PlotWindowTable() { return kRows; }

}  // namespace orvane
