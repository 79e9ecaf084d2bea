#include "random/desk/moves.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "controls/surface.h"

namespace orvane {
namespace {

using Lines = std::vector<std::string>;
using Kind = ControlKind;

constexpr std::size_t kMostAnswers = 3;  // that wait for a box
constexpr int kLongestBurst = 60;

constexpr std::string_view kChannelTexts[] = {
    "0",     "255", "128", " 7 ",    "+5",     "1e2",  "0.5",  "254.5", "300",
    "-1",    "",    "abc", "1e400",  "nan",    "inf",  "0x10", "99999", "32767.5",
    "32768", "-0",  "1,5", "--3",    "+-3",    "1e-9", " ",    "5 5",   "\xC3\xA4",
    "2e",    ".5",  "5.",  "-32768", "-32769", "1E+2", "00012"};
constexpr std::string_view kNames[] = {
    "a", "abc", "abcd", "",  "a/b", "..",       "\\",       "\xC3\xA4\xC3\xB6\xC3\xBC",
    "x", "1 2", " ",    "%", "con", "test.gif", "\xFF\xFE", "..."};
constexpr std::string_view kLists[] = {"AA_Lst", "Pro_Lst", "Nuc_Lst", "DNA_Lst"};
constexpr std::string_view kBars[] = {"VScroll1", "ZoomBar", "X_TRANS", "Y_TRANS", "Rt_speed"};
constexpr std::string_view kTimers[] = {"Timer1", "Orvane_Front.Timer1"};
constexpr std::string_view kSaves[] = {"S_bmp", "S_JPG", "S_Gif", "S_AnGif", "P_Sterio"};
constexpr std::string_view kChoosers[] = {"Drive1", "Dir1", "File1"};
constexpr std::string_view kFolders[] = {"/", "", "C:\\", "a/b/c", "..", "\xC3\xA4/", "1 2"};
constexpr std::string_view kWalkSteps[] = {"next", "next", "previous", "first",
                                           "last", "pick", "pick",     "pick"};
constexpr int kButtons[] = {1, 2, 4};
constexpr int kFarValues[] = {-2147483647, -32769, -361, -101, 101, 361, 32768, 2147483647};

std::string Words(std::initializer_list<std::string_view> words) {
  std::string line;
  for (const std::string_view word : words) line.append(line.empty() ? "" : " ").append(word);
  return line;
}

std::string Text(double value) {
  std::array<char, 40> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), static_cast<float>(value));
  return {text.data(), end.ptr};
}

// The controls of all windows, numbered from the first control of the first window.
Control& AnyControl(Dice& dice, const Orvane_Desk& desk) {
  std::size_t count = 0;
  for (const Window* window : desk.windows) count += window->Controls.size();
  auto chosen = static_cast<std::size_t>(dice.Below(static_cast<int>(count)));
  for (const Window* window : desk.windows) {
    if (chosen < window->Controls.size()) return *window->Controls[chosen];
    chosen -= window->Controls.size();
  }
  return *desk.windows.front()->Controls.front();
}

// One that the user can reach, unless chance keeps finding others.
Control& AnyOpenControl(Dice& dice, const Orvane_Desk& desk) {
  constexpr int kTries = 12;
  for (int i = 0; i < kTries; ++i) {
    Control& control = AnyControl(dice, desk);
    if (control.IsOpenToUser()) return control;
  }
  return AnyControl(dice, desk);
}

std::string Somewhere(Dice& dice, const Control& control) {
  const Place at = control.At;
  double x = dice.Between(-20, at.Width / TwipsPerPixel + 20);
  double y = dice.Between(-20, at.Height / TwipsPerPixel + 20);
  if (dice.OneIn(10)) x += 0.25;
  if (dice.OneIn(300)) x = dice.OneIn(2) ? 3e38 : -1e9;
  if (dice.OneIn(300)) y = dice.OneIn(2) ? -3e38 : 70000;
  return Text(x) + " " + Text(y);
}

std::string OnAnAtom(Dice& dice, const Orvane_Desk& desk) {
  const int atom = dice.Between(1, std::max<int>(1, desk.molecule.AtomCount));
  const double x = desk.molecule.ScrX[atom] + dice.Between(-2, 2);
  const double y = desk.molecule.ScrY[atom] + dice.Between(-2, 2);
  const auto fits = [](double value) { return std::abs(value) < 1e30; };  // and is a number
  if (!fits(x) || !fits(y)) return "0 0";
  return Text(x) + " " + Text(y);
}

std::string PointerLine(Dice& dice, const Control& control, const std::string& at) {
  const std::string name = control.FullName();
  switch (dice.Below(4)) {
    case 0:
      return Words({"press", name, std::to_string(dice.Of(std::span(kButtons))), at});
    case 1:
      return Words({"release", name, std::to_string(dice.Of(std::span(kButtons))), at});
    default:
      return Words({"move", name, std::to_string(dice.OneIn(2) ? 2 : dice.Below(8)), at});
  }
}

// The main event of a control of this kind.
std::string UseOf(Dice& dice, Control& control) {
  const std::string name = control.FullName();
  if (dice.OneIn(30)) return Words({dice.OneIn(2) ? "#enter" : "#focus", name});
  switch (control.Row.Kind) {
    case Kind::Timer:
      return Words({"tick", name});
    case Kind::List: {
      const auto rows = static_cast<int>(static_cast<List&>(control).Rows.Get().size());
      return Words({"select", name, std::to_string(dice.Between(-1, rows))});
    }
    case Kind::ScrollBar: {
      const BarRange range = static_cast<ScrollBar&>(control).Range;
      const int value = dice.OneIn(40) ? dice.Of(std::span(kFarValues))
                                       : dice.Between(range.Min - 2, range.Max + 2);
      if (dice.OneIn(4)) return Words({"drop", name});
      return Words({dice.OneIn(2) ? "bar" : "drag", name, std::to_string(value)});
    }
    case Kind::TextBox:
      if (dice.OneIn(2)) {
        return Words({"key", name, std::to_string(dice.OneIn(3) ? dice.Below(256) : 13)});
      }
      return "type " + name + " " + std::string(dice.Of(std::span(kChannelTexts)));
    case Kind::PictureBox:
      return PointerLine(dice, control, Somewhere(dice, control));
    default:
      if (dice.OneIn(12)) return PointerLine(dice, control, Somewhere(dice, control));
      if (dice.OneIn(40)) return Words({"doubleclick", name});
      // Size keys and swatches act on the press; on the screen a click always follows a press.
      return Words({"click", name});
  }
}

void AppendResize(Dice& dice, const Orvane_Desk& desk, Lines& lines) {
  std::string line = Words({"#resize", dice.Of(std::span(desk.windows))->Name});
  line += " " + std::to_string(dice.Below(3));
  for (int i = 0; i < 4; ++i) line += " " + std::to_string(dice.Between(-100, 20000));
  lines.push_back(line);
}

void AppendOuterWorld(Dice& dice, Sitting& session, Lines& lines) {
  switch (dice.Below(8)) {
    case 0:
      return lines.emplace_back("#save-fails"), void();
    case 1:
    case 2:
      return lines.emplace_back("#saves"), void();
    case 3:
      return lines.emplace_back(dice.OneIn(2) ? "no-printer" : "printer"), void();
    case 4:
      return lines.push_back("sound-fails " + std::to_string(dice.Between(-1, 400))), void();
    case 5:
    case 6:
      return AppendResize(dice, session.Desk(), lines);
    default:
      return lines.push_back("#look " + Text(dice.Between(1, 8) / 4.0)), void();
  }
}

void AppendAnswer(Dice& dice, const Sitting& session, Lines& lines) {
  if (session.player.platform->Answers.size() >= kMostAnswers || dice.OneIn(4)) return;
  lines.push_back("answer " + std::string(dice.Of(std::span(kNames))));
}

// Something that leaves the desk running: neither the end of the program nor a new start.
std::string Anything(Dice& dice, Sitting& session) {
  const Orvane_Desk& desk = session.Desk();
  switch (dice.Below(10)) {
    case 0:
      return PointerLine(dice, desk.main.Picture1, OnAnAtom(dice, desk));
    case 1:
      if (dice.OneIn(8)) return "click Picture1";
      return PointerLine(dice, desk.main.Picture1, Somewhere(dice, desk.main.Picture1));
    case 2:
      return Words({"press", desk.main.Sz_Balls[static_cast<std::size_t>(dice.Below(6))].FullName(),
                    "1", "3 3"});
    case 3:
      return Words({"press",
                    desk.main.P_Clr[static_cast<std::size_t>(dice.Below(kSwatchCount))].FullName(),
                    "1", "3 3"});
    case 4:
      return UseOf(dice, *desk.FindControl(dice.Of(std::span(kBars))));
    default: {
      Control& control = dice.OneIn(8) ? AnyControl(dice, desk) : AnyOpenControl(dice, desk);
      std::string line = UseOf(dice, control);
      if (line == "click ExitEntry") return "dump";
      if (dice.OneIn(30) && !line.starts_with('#')) line.insert(0, "force ");
      return line == "force click ExitEntry" ? "dump controls" : line;
    }
  }
}

void AppendTick(Dice& dice, Sitting& session, Lines& lines) {
  const bool nests = dice.OneIn(4);
  for (int i = nests ? dice.Between(1, 3) : 0; i > 0; --i) {
    lines.push_back("#nest " + Anything(dice, session));
  }
  AppendAnswer(dice, session, lines);
  lines.push_back(Words({"tick", dice.OneIn(12) ? kTimers[1] : kTimers[0]}));
}

// Forced: the music menu is never shown, but its entries work.
void AppendMusic(Dice& dice, Lines& lines) {
  if (dice.OneIn(5)) lines.push_back("sound-fails " + std::to_string(dice.Between(0, 400)));
  if (dice.OneIn(2)) {
    const std::string tune = "PMSC" + std::to_string(dice.Between(1, 9));
    lines.push_back(Words({"force click", dice.OneIn(4) ? "StMsc" : tune}));
    return;
  }
  lines.emplace_back("force click OpMfL");
  for (int i = dice.Below(4); i > 0; --i) {
    lines.push_back(
        dice.OneIn(2)
            ? Words({"#folder", dice.Of(std::span(kChoosers)), dice.Of(std::span(kFolders))})
            : Words({"#choose", dice.Of(std::span(kChoosers)), dice.Of(std::span(kNames))}));
  }
  if (!dice.OneIn(3)) lines.emplace_back("doubleclick File1");
}

// By keys: over the atoms, or over the names on the map if it is shown.
void AppendWalk(Dice& dice, const Orvane_Desk& desk, Lines& lines) {
  const bool on_map = desk.plot.Visible && dice.OneIn(2);
  for (int i = dice.Between(1, 6); i > 0; --i) {
    lines.push_back(on_map ? Words({"#map", dice.OneIn(3) ? "previous" : "next"})
                           : Words({"#walk", dice.Of(std::span(kWalkSteps))}));
  }
}

// Some of these end the program and with it the life, so they are rare.
void AppendClose(Dice& dice, const Orvane_Desk& desk, Lines& lines) {
  const Window& window = *dice.Of(std::span(desk.windows));
  const bool may_end = &window == &desk.main || &window == &desk.front || &window == &desk.content;
  if (may_end && !dice.OneIn(10)) return;
  lines.push_back(Words({"#close", window.Name}));
}

// The same over and over: a held key, a spin that nobody stops, a recording to its end.
void AppendBurst(Dice& dice, Sitting& session, Lines& lines) {
  const std::string line = dice.OneIn(2) ? "tick Timer1" : Anything(dice, session);
  lines.insert(lines.end(), static_cast<std::size_t>(dice.Between(2, kLongestBurst)), line);
}

}  // namespace

std::vector<std::string> NextLines(Dice& dice, Sitting& session) {
  Lines lines;
  const Orvane_Desk& desk = session.Desk();
  if (!desk.main.Visible && dice.OneIn(3)) return {"enter"};
  switch (const int chance = dice.Below(200)) {
    case 0:
      AppendBurst(dice, session, lines);
      break;
    case 1:
      if (dice.OneIn(20)) lines.emplace_back("restart");
      break;
    case 2:
      if (dice.OneIn(20)) lines.emplace_back("click ExitEntry");
      break;
    case 3:
      AppendClose(dice, desk, lines);
      break;
    case 4:
      AppendMusic(dice, lines);
      break;
    case 5:
    case 6:
      AppendWalk(dice, desk, lines);
      break;
    default:
      if (chance < 12) {
        lines.push_back(UseOf(dice, *desk.FindControl(dice.Of(std::span(kLists)))));
      } else if (chance < 18) {
        AppendAnswer(dice, session, lines);
        lines.push_back(Words({"click", dice.Of(std::span(kSaves))}));
      } else if (chance < 24) {
        AppendOuterWorld(dice, session, lines);
      } else if (chance < 54) {
        AppendTick(dice, session, lines);
      } else {
        lines.push_back(Anything(dice, session));
      }
  }
  return lines;
}

}  // namespace orvane
