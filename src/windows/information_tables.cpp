#include "windows/information_tables.h"

#include <array>

#include "controls/spoken.h"

namespace orvane {
namespace {

using enum ControlKind;

// Places in twips from the window's inner top left.
// clang-format off
constexpr auto kFrontRows = std::to_array<ControlRow>({
    {.Name = "Orvane_Front", .Kind = Window, .Caption = "Orvane", .At = {0, 0, 7200, 4800}, .Visible = false},
    {.Name = "Image2",   .Kind = Ornament, .At = {0, 0, 7200, 4800}},
    {.Name = "Panel3D1", .Kind = Panel, .At = {0, 0, 7200, 45}, .Tip = "Set off the top of the window", .Role = SpokenRole::Decoration},
    {.Name = "Panel3D2", .Kind = Panel, .At = {360, 420, 2520, 2520}, .Tip = "Watch a protein turn", .Spoken = "Frame of the protein", .Role = SpokenRole::Group},
    {.Name = "Panel3D3", .Kind = Panel, .At = {4320, 420, 2520, 2520}, .Tip = "Watch DNA turn", .Spoken = "Frame of the DNA", .Role = SpokenRole::Group},
    {.Name = "Image1(0)", .Kind = ImageBox, .Parent = "Panel3D2", .At = {30, 30, 2460, 2460}, .Tip = "Watch a protein turn", .Spoken = "A protein turning"},
    {.Name = "Image1(1)", .Kind = ImageBox, .Parent = "Panel3D3", .At = {30, 30, 2460, 2460}, .Tip = "Watch DNA turn", .Spoken = "DNA turning"},
    {.Name = "OVN_Icon", .Kind = ImageBox, .At = {3120, 660, 960, 960}, .Tip = "Know Orvane by this sign", .Spoken = "Icon of Orvane"},
    {.Name = "Panel3D5", .Kind = Panel, .Caption = "Version 3.0   ", .At = {2940, 1740, 1320, 270}, .Tip = "Read which version this is"},
    {.Name = "Title",    .Kind = Panel, .Caption = "  Orvane   (OVN)  ", .At = {360, 3150, 6480, 540}, .Tip = "Read the name of the program", .Role = SpokenRole::Heading},
    {.Name = "Host",     .Kind = Panel, .Caption = "Proteins and DNA in three dimensions", .At = {360, 3690, 6480, 270}, .Tip = "Read what Orvane shows"},
    {.Name = "Panel3D4", .Kind = Panel, .At = {360, 4140, 6480, 15}, .Tip = "Set off the foot of the window", .Role = SpokenRole::Decoration},
    {.Name = "By",       .Kind = Panel, .Caption = "By", .At = {360, 4290, 300, 330}, .Tip = "Read who wrote Orvane"},
    {.Name = "Author",   .Kind = Link,  .Caption = "The author", .At = {660, 4290, 2400, 330}, .Tip = "Show who wrote Orvane", .TabStop = 2},
    {.Name = "Get_in",   .Kind = GoOn,  .At = {6375, 4230, 450, 450}, .Tip = "Go on", .Spoken = "Go on", .TabStop = 1},
    {.Name = "Timer1",   .Kind = Timer, .Spoken = "Moving pictures", .Interval = 150},

    // The frames of the two animations, never shown themselves.
    {.Name = "Pro_Image(0)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "Pro_Image(1)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "Pro_Image(2)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "Pro_Image(3)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "Pro_Image(4)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "Pro_Image(5)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "Pro_Image(6)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "Pro_Image(7)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "Pro_Image(8)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "Pro_Image(9)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "DNA_Image(0)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "DNA_Image(1)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "DNA_Image(2)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "DNA_Image(3)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "DNA_Image(4)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "DNA_Image(5)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "DNA_Image(6)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "DNA_Image(7)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "DNA_Image(8)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
    {.Name = "DNA_Image(9)", .Kind = ImageBox, .At = {0, 0, 2460, 2460}, .Visible = false},
});

constexpr auto kContentRows = std::to_array<ControlRow>({
    {.Name = "Content",  .Kind = Window, .Caption = "What's new in OVN", .At = {0, 0, 7800, 5700}, .Visible = false},
    {.Name = "Line5",    .Kind = Line,  .At = {0, 780, 7800, 15}},
    {.Name = "OVN_Icon", .Kind = ImageBox, .At = {240, 150, 480, 480}, .Tip = "Know Orvane by this sign", .Spoken = "Icon of Orvane"},
    {.Name = "WtNew",    .Kind = Panel, .Caption = "What's new in OVN", .At = {900, 0, 5700, 780}, .Tip = "Read what is new", .Role = SpokenRole::Heading},
    {.Name = "Text(0)",  .Kind = Panel, .Caption = "OVN offers the interactive study of the following subjects:", .At = {360, 990, 7080, 300}, .Tip = "Read what can be studied"},
    {.Name = "Card(0)",  .Kind = Frame, .At = {360, 1440, 7080, 840}, .Tip = "Read about the subjects", .Spoken = "Subjects"},
    {.Name = "Card(1)",  .Kind = Frame, .At = {360, 2400, 7080, 1380}, .Tip = "Read how molecules are drawn", .Spoken = "Ways of drawing"},
    {.Name = "Card(2)",  .Kind = Frame, .At = {360, 3900, 7080, 840}, .Tip = "Read what is measured", .Spoken = "Measuring"},
    {.Name = "Line2",    .Kind = Line,  .At = {435, 1590, 45, 540}},
    {.Name = "Line3",    .Kind = Line,  .At = {435, 2550, 45, 1080}},
    {.Name = "Line4",    .Kind = Line,  .At = {435, 4050, 45, 540}},
    {.Name = "Text(1)",  .Kind = Panel, .Caption = "Structure, conformation and stereochemistry of amino acids and DNA nucleotides.  ", .At = {660, 1440, 5640, 840}, .Tip = "Read about the subjects"},
    {.Name = "Text(2)",  .Kind = Panel, .Caption = "OVN provides different graphical representation  modes with the aim of simplifying the study of the above subjects. These include the wire-frame, stick, ball and stick, C  -trace, Ribbon and Peptide Bond Plane (PBP; Bioribbon) display modes.", .At = {660, 2400, 5640, 1380}, .Tip = "Read how molecules are drawn"},
    {.Name = "Greek",    .Kind = Panel, .Caption = "a", .At = {0, 0, 150, 240}, .Tip = "Read the letter of the alpha carbon", .Spoken = "alpha"},
    {.Name = "Text(3)",  .Kind = Panel, .Caption = "Calculation of bond distances, bond angles and ", .At = {660, 4065, 6600, 240}, .Tip = "Read what is measured"},
    {.Name = "Text(4)",  .Kind = Panel, .Caption = "torsion angles is possible. Ramachandran plot is also provided.  ", .At = {660, 4305, 6600, 240}, .Tip = "Read what is measured"},
    {.Name = "Image1(0)", .Kind = ImageBox, .At = {6600, 1500, 720, 720}, .Tip = "Look at a double strand", .Spoken = "Double strand"},
    {.Name = "Image1(1)", .Kind = ImageBox, .At = {6600, 2730, 720, 720}, .Tip = "Look at a helix", .Spoken = "Helix"},
    {.Name = "Line1",    .Kind = Line,  .At = {360, 4980, 7080, 15}},
    {.Name = "Line6",    .Kind = Line,  .At = {0, 0, 7800, 15}},
    {.Name = "Line7",    .Kind = Line,  .At = {0, 5685, 7800, 15}},
    {.Name = "Line8",    .Kind = Line,  .At = {0, 0, 15, 5700}},
    {.Name = "Line9",    .Kind = Line,  .At = {7785, 0, 15, 5700}},
    {.Name = "Get_in",   .Kind = GoOn,  .At = {6945, 5115, 450, 450}, .Tip = "Go on", .Spoken = "Go on", .TabStop = 1},
});

constexpr auto kAuthorRows = std::to_array<ControlRow>({
    {.Name = "Author_frm", .Kind = Window, .Caption = "Author in brief", .At = {0, 0, 6600, 4500}, .Visible = false},
    {.Name = "OVN_Icon", .Kind = ImageBox, .At = {240, 150, 480, 480}, .Tip = "Know Orvane by this sign", .Spoken = "Icon of Orvane"},
    {.Name = "Title",    .Kind = Panel, .Caption = "Orvane   (OVN)", .At = {900, 0, 5460, 780}, .Tip = "Read the name of the program", .Role = SpokenRole::Heading},
    {.Name = "Panel3D1", .Kind = Frame, .At = {2580, 1080, 3660, 2460}, .Tip = "Read how Orvane began", .Spoken = "About Orvane"},
    {.Name = "Image1",   .Kind = ImageBox, .At = {360, 1080, 1980, 2460}, .Tip = "Look at alanine in balls and sticks", .Spoken = "Alanine in balls and sticks"},
    {.Name = "Author",   .Kind = Panel, .Caption = "About Orvane", .At = {2790, 1200, 3240, 330}, .Tip = "Read how Orvane began", .Role = SpokenRole::Heading},
    {.Name = "Panel3D2", .Kind = Panel, .Caption =
        "Orvane grew out of lessons in which students wanted to turn a helix in their own hands, "
        "measure a bond and see the hand of an amino acid before they learned its name.", .At = {2790, 1560, 3240, 1920}, .Tip = "Read how Orvane began"},
    {.Name = "Line1",    .Kind = Line,  .At = {360, 3780, 5880, 15}},
    {.Name = "Get_in",   .Kind = GoOn,  .At = {5745, 3915, 450, 450}, .Tip = "Go on", .Spoken = "Go on", .TabStop = 1},
});
// clang-format on

}  // namespace

std::span<const ControlRow> FrontTable() { return kFrontRows; }
std::span<const ControlRow> ContentTable() { return kContentRows; }
std::span<const ControlRow> AuthorTable() { return kAuthorRows; }

}  // namespace orvane
