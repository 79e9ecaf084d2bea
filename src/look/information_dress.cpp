#include "look/information_dress.h"

#include <array>

namespace orvane {
namespace {

using namespace palette;

constexpr Argb kFront = 0xFF35B7C9;      // the line above the splash: the icon's own blue
constexpr Argb kFrontHair = 0xFF22303B;  // a line that the dark background nearly swallows

// clang-format off
constexpr auto kDresses = std::to_array<Dress>({
    {.Control = "Orvane_Front.Image2",   .Face = kBezel},
    {.Control = "Orvane_Front.Panel3D1", .Face = kFront},
    {.Control = "Orvane_Front.Panel3D2", .Face = kBlack, .Edge = kFrontHair, .Corner = 4},
    {.Control = "Orvane_Front.Panel3D3", .Face = kBlack, .Edge = kFrontHair, .Corner = 4},
    {.Control = "Orvane_Front.OVN_Icon", .Shape = DressShape::Icon},
    {.Control = "Orvane_Front.Panel3D5", .Ink = kQuietOnDark, .Letters = {11, 600}},
    {.Control = "Orvane_Front.Title",    .Ink = kOnDark, .Letters = {26, 700}},
    {.Control = "Orvane_Front.Host",     .Ink = kQuietOnDark, .Letters = {12, 500}},
    {.Control = "Orvane_Front.Panel3D4", .Face = kFrontHair},
    {.Control = "Orvane_Front.By",       .Ink = kQuietOnDark, .Letters = {11, 500}, .Align = Side::Left},
    {.Control = "Orvane_Front.Author",   .Shape = DressShape::Link, .Ink = kAccentOnDark, .Letters = {11, 600}, .Align = Side::Left},
    {.Control = "Orvane_Front.Get_in",   .Shape = DressShape::GoOn},

    {.Control = "Content.OVN_Icon", .Shape = DressShape::Icon},
    {.Control = "Content.WtNew",    .Ink = kOnDark, .Letters = {18, 700}, .Align = Side::Left},
    {.Control = "Content.Text(0)",  .Shape = DressShape::Reading, .Letters = {13, 600}, .LineHeight = 16},
    {.Control = "Content.Text",     .Shape = DressShape::Reading, .Letters = {13, 500}, .LineHeight = 16},
    {.Control = "Content.Greek",    .Shape = DressShape::Greek, .Letters = {13, 500}},
    {.Control = "Content.Card",     .Face = kFace, .Edge = kListEdge, .Corner = 6},
    {.Control = "Content.Line1",    .Face = kHair},
    {.Control = "Content.Line2",    .Face = kAccent, .Corner = 1},
    {.Control = "Content.Line3",    .Face = kAccent, .Corner = 1},
    {.Control = "Content.Line4",    .Face = kAccent, .Corner = 1},
    {.Control = "Content.Line5",    .Face = kHair},
    {.Control = "Content.Line6",    .Face = kHair},
    {.Control = "Content.Line7",    .Face = kHair},
    {.Control = "Content.Line8",    .Face = kHair},
    {.Control = "Content.Line9",    .Face = kHair},
    {.Control = "Content.Image1",   .Shape = DressShape::RoundPicture, .Edge = kFrontHair, .Corner = 4},
    {.Control = "Content.Get_in",   .Shape = DressShape::GoOn},

    {.Control = "Author_frm.OVN_Icon", .Shape = DressShape::Icon},
    {.Control = "Author_frm.Title",    .Ink = kOnDark, .Letters = {18, 700}, .Align = Side::Left},
    {.Control = "Author_frm.Panel3D1", .Face = kFace, .Edge = kListEdge, .Corner = 6},
    {.Control = "Author_frm.Image1",   .Shape = DressShape::RoundPicture, .Edge = kEdge, .Corner = 6},
    {.Control = "Author_frm.Author",   .Ink = kDeep, .Letters = {14, 700}, .Align = Side::Left},
    {.Control = "Author_frm.Panel3D2", .Shape = DressShape::Reading, .Letters = {13, 500}, .TextTop = 0, .LineHeight = 16},
    {.Control = "Author_frm.Line1",    .Face = kHair},
    {.Control = "Author_frm.Get_in",   .Shape = DressShape::GoOn},
});
// clang-format on

}  // namespace

std::span<const Dress> InformationDresses() { return kDresses; }

}  // namespace orvane
