#include <algorithm>

#include "desk_fixture.h"
#include "fuzz/bodies.h"
#include "random/desk/always.h"

namespace orvane {
namespace {

std::string_view NextLine(std::string_view& text) {
  const std::string_view line = text.substr(0, text.find('\n'));
  text.remove_prefix(std::min(text.size(), line.size() + 1));
  return line;
}

// Whether the text is a number of up to four digits. About any other form this says nothing.
bool IsPlainNumber(std::string_view text) {
  return !text.empty() && text.size() <= 4 &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

int Channel(std::string_view text) { return std::min(255, std::stoi(std::string(text))); }

}  // namespace

std::string ReadAsColours(Bytes bytes) {
  static DeskAtWork work;
  Orvane_Desk& desk = work.desk;
  std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  const Colour before = desk.main.Picture1.PlainColour();
  std::array<std::string_view, 3> typed;
  work.platform.Effects.clear();
  for (std::size_t i = 0; i < 3; ++i) {
    typed[i] = NextLine(text);
    TypeText(desk, desk.main.RGB_V[i], typed[i], Reach::Forced);
  }
  PressKey(desk, desk.main.RGB_V[0], kEnterKey, Reach::Forced);

  const Colour now = desk.main.Picture1.PlainColour();
  const bool failed = !work.platform.Effects.empty();
  if (failed && now != before) return "a colour that could not be read was taken";
  if ((now & ~0xFFFFFFU) != 0) return "no colour";
  if (std::all_of(typed.begin(), typed.end(), IsPlainNumber)) {
    if (failed) return "a plain number was refused";
    if (now != Rgb(Channel(typed[0]), Channel(typed[1]), Channel(typed[2]))) {
      return "another colour than was typed";
    }
  }
  LastSeen last;
  return WhatIsWrong(desk, {true, true}, last, true);
}

}  // namespace orvane
