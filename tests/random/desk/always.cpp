#include "random/desk/always.h"

#include <algorithm>
#include <cmath>

#include "commands/recording.h"
#include "controls/surface.h"
#include "random/desk/digest.h"
#include "random/desk/looks.h"
#include "random/desk/numbers_of_atoms.h"

namespace orvane {
namespace {

constexpr double kFarFromTheEnd = 1e150;  // no single action makes a smaller number overflow

struct Bounds {
  const char* Name;
  int Value, Low, High;
};

std::string OutsideBounds(const Orvane_Desk& d) {
  const auto& [molecule, selection, drawing, colours, stereo, measure, view, recording, shell] =
      std::tie(d.molecule, d.selection, d.drawing, d.colours, d.stereo, d.measure, d.view,
               d.recording, d.shell);
  // clang-format off
  const Bounds rows[] = {
      {"AtomCount",        molecule.AtomCount,         0, kMostAtoms},
      {"BondCount",        molecule.BondCount,         0, kLastSlot},
      {"HBondCount",       molecule.HBondCount,        0, kLastSlot},
      {"MoleculeReady",    molecule.MoleculeReady,     0, 1},
      {"StockPending",     selection.StockPending,     0, 1},
      {"ListsShown",       selection.ListsShown,       0, 1},
      {"AutoRotateOn",     view.AutoRotateOn,          0, 1},
      {"DrawFamily",       drawing.DrawFamily,         0, 1},
      {"PeptideOn",        drawing.PeptideOn,          0, 1},
      {"PlanesOnly",       drawing.PlanesOnly,         0, 1},
      {"RibbonOn",         drawing.RibbonOn,           0, 1},
      {"CartoonOn",        drawing.CartoonOn,          0, 1},
      {"BallsOn",          drawing.BallsOn,            0, 1},
      {"LabelsOn",         drawing.LabelsOn,           0, 1},
      {"HBondShown",       drawing.HBondShown,         0, 1},
      {"NucleicMode",      drawing.NucleicMode,        0, 1},
      {"ChainPlanes",      drawing.ChainPlanes,        0, 1},
      {"BondWidth",        drawing.BondWidth,          1, 6},
      {"PlaneWidth",       drawing.PlaneWidth,         1, 6},
      {"BallSize",         drawing.BallSize,           1, 6},
      {"OverdrawPass",     drawing.OverdrawPass,       0, 0},
      {"FastWire",         drawing.FastWire,           0, 0},
      {"HalfIsDouble",     drawing.HalfIsDouble,       0, 1},
      {"ColourByElement",  colours.ColourByElement,    0, 1},
      {"BackgroundIndex",  colours.BackgroundIndex,   -1, 4},
      {"ColourTarget",     colours.ColourTarget,       0, 3},
      {"ColourRefused",    colours.ColourRefused,      0, 1},
      {"StereoOn",         stereo.StereoOn,            0, 1},
      {"EnantiomerOn",     stereo.EnantiomerOn,        0, 1},
      {"EnantiomerPairOn", stereo.EnantiomerPairOn,    0, 1},
      {"RedGreenOn",       stereo.RedGreenOn,          0, 1},
      {"SplitViewOn",      stereo.SplitViewOn,         0, 2},
      {"SavedBondWidth",   stereo.SavedBondWidth,      1, 6},
      {"SavedPlaneWidth",  stereo.SavedPlaneWidth,     1, 6},
      {"SavedColourMode",  stereo.SavedColourMode,     0, 1},
      {"PickState",        measure.PickState,          0, 3},
      {"MeasureOn",        measure.MeasureOn,          0, 0},
      {"GifRecording",     recording.GifRecording,    -1, 0},
      {"GifFrame",         recording.GifFrame,         0, kRecordingTicks},
      {"FromFrontAuthor",  shell.FromFrontAuthor,     -1, 0},
      {"FrontFrame",       shell.FrontFrame,           0, 9},
      {"Timer1.Interval",  d.main.Timer1.Interval,     1, 400},
      {"PhiCount",         d.survey.PhiCount,          0, 500},
      {"PsiCount",         d.survey.PsiCount,          0, 500},
  };
  // clang-format on
  for (const Bounds& row : rows) {
    if (row.Value < row.Low || row.Value > row.High) {
      return std::string(row.Name) + " is " + std::to_string(row.Value);
    }
  }
  return "";
}

std::uint64_t DigestOfAsRead(const Molecule& molecule) {
  Digest digest;
  for (int i = 1; i <= kMostAtoms; ++i) {
    digest.MixNumber(molecule.AtomX[i]);
    digest.MixNumber(molecule.AtomY[i]);
    digest.MixNumber(molecule.AtomZ[i]);
  }
  return digest.Value;
}

// A zoom has no limit, so numbers may overflow far beyond the screen, but never before.
std::string NoNumber(const Molecule& molecule, LastSeen& last) {
  double farthest = 0;
  bool all_finite = true;
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    for (const double value : {molecule.CurX[i], molecule.CurY[i], molecule.CurZ[i],
                               molecule.ScrX[i], molecule.ScrY[i]}) {
      all_finite &= std::isfinite(value);
      farthest = std::max(farthest, std::abs(value));
    }
  }
  const bool was_in_range = last.InRange;
  last.InRange = all_finite && farthest < kFarFromTheEnd;
  return !all_finite && was_in_range ? "a coordinate is no number" : "";
}

// A selector: at most one cell is 1, and the others are 0.
bool IsSelector(int x, int y, int z) {
  const auto is_cell = [](int cell) { return cell == 0 || cell == 1; };
  return is_cell(x) && is_cell(y) && is_cell(z) && x + y + z <= 1;
}
bool IsSelector(const AxisCells& cells) { return IsSelector(cells.X, cells.Y, cells.Z); }

bool IsEmpty(const AxisCells& cells) { return cells.X == 0 && cells.Y == 0 && cells.Z == 0; }

std::string WrongAxis(const View& view, bool may_be_set, LastSeen& last) {
  if (!IsSelector(view.AxisX, view.AxisY, view.AxisZ)) return "the axis is no selector";
  if (!IsSelector(view.SavedAxisX, view.SavedAxisY, view.SavedAxisZ)) {
    return "the saved axis is no selector";
  }
  // A release restores no axis if none was ever saved. Nothing else loses an axis.
  const bool has_axis = view.AxisX + view.AxisY + view.AxisZ == 1;
  const bool has_saved = view.SavedAxisX + view.SavedAxisY + view.SavedAxisZ == 1;
  if (!has_axis && has_saved) return "no axis is live, and one is saved";
  if (!has_axis && last.HadAxis && !may_be_set) return "the axis was lost";
  last.HadAxis = has_axis;
  return "";
}

// A drag turns about its own axis, and a release restores what the press before it saved, no matter
// how long ago. The tags are told of neither.
std::string WrongTag(const Orvane_Desk& desk, bool may_be_set, LastSeen& last) {
  const View& view = desk.view;
  const int cells[] = {view.AxisX, view.AxisY, view.AxisZ};
  const int pressed = PressedTag(desk.main);
  const bool agrees = pressed >= 0 && cells[pressed] == 1;
  if (!agrees && last.TagAgreed && !may_be_set) return "the tag of another axis is pressed";
  last.TagAgreed = agrees;
  return "";
}

// A mirrored pair whose first picture cannot be drawn leaves -1 in its cells.
std::string WrongCells(const Stereo& stereo) {
  const AxisCells& mirror = stereo.EnantiomerCells;
  if (!IsEmpty(stereo.PairCells)) return "the cells of the pair hold an axis";
  if (!IsEmpty(stereo.RedGreenCells)) return "the cells of red and green hold an axis";
  if (!IsSelector(stereo.PairBCells)) return "the cells of the second pair are no selector";
  const bool was_begun = mirror.X == -1 && mirror.Y == -1 && mirror.Z == -1;
  return was_begun || IsSelector(mirror) ? "" : "the cells of the mirrored pair are no selector";
}

std::string OutsideItsRange(const Orvane_Desk& desk) {
  for (const Window* window : desk.windows) {
    if (window->MousePointer == kPointerHourglass) return "the hourglass of " + window->Name;
    for (const Control* control : window->Controls) {
      if (control->Row.Kind == ControlKind::ScrollBar) {
        const auto& bar = static_cast<const ScrollBar&>(*control);
        if (bar.Value < bar.Range.Min || bar.Value > bar.Range.Max)
          return "the value of " + bar.Name;
      } else if (control->Row.Kind == ControlKind::List) {
        const auto& list = static_cast<const List&>(*control);
        if (list.ListIndex < -1 || list.ListIndex >= static_cast<int>(list.Rows.Get().size())) {
          return "the row of " + list.Name;
        }
      }
    }
  }
  return "";
}

std::string Unreadable(const Picture& picture) {
  if (picture.Strokes.size() > kMostStrokes) return "too many strokes";
  if (picture.Texts.size() > picture.Strokes.size()) return "texts that no stroke prints";
  for (const Stroke& stroke : picture.Strokes) {
    if (stroke.Kind > StrokeKind::Print) return "a stroke of no kind";
    if (stroke.Kind == StrokeKind::Print && stroke.Text >= picture.Texts.size()) {
      return "a stroke without its text";
    }
  }
  const auto& ground = picture.Backdrop;
  if (ground && ground->Words.size() != static_cast<std::size_t>(ground->Width) *
                                            static_cast<std::size_t>(ground->Height)) {
    return "a backdrop of another size";
  }
  return "";
}

std::string UnreadablePicture(const Orvane_Desk& desk) {
  for (const Window* window : desk.windows) {
    for (const Control* control : window->Controls) {
      std::shared_ptr<const Picture> picture;
      if (control->Row.Kind == ControlKind::PictureBox) {
        // From a snapshot, so that the surface is not told that somebody looked.
        if (const auto* box = dynamic_cast<const PictureBox*>(control)) picture = box->Image();
      } else if (control->Row.Kind == ControlKind::ImageBox) {
        picture = static_cast<const ImageBox&>(*control).Shown();
      }
      if (!picture) continue;
      const std::string wrong = Unreadable(*picture);
      if (!wrong.empty()) return control->FullName() + " holds " + wrong;
    }
  }
  return "";
}

}  // namespace

std::string WhatIsWrong(const Orvane_Desk& desk, Freedom freedom, LastSeen& last, bool thorough) {
  const bool is_first = last.Checks == 0;
  ++last.Checks;

  const std::uint64_t as_read = DigestOfAsRead(desk.molecule);
  const bool changed = std::exchange(last.AsRead, as_read) != as_read;
  if (changed && !freedom.MayHaveLoaded && !is_first) {
    return "the coordinates as read have changed without a load";
  }

  std::string wrong = OutsideBounds(desk);
  if (wrong.empty()) wrong = UnknownCaption(desk);
  if (wrong.empty() && last.HadMemory) wrong = OtherThanItsField(desk);
  if (wrong.empty()) wrong = WrongNumberOfAnAtom(desk, last.LoadsWereWhole);
  if (wrong.empty()) wrong = WrongAxis(desk.view, freedom.MayHaveSetAxis, last);
  if (wrong.empty()) wrong = WrongTag(desk, freedom.MayHaveSetAxis, last);
  if (wrong.empty()) wrong = WrongCells(desk.stereo);
  if (wrong.empty()) wrong = NoNumber(desk.molecule, last);
  if (wrong.empty()) wrong = OutsideItsRange(desk);
  if (wrong.empty() && thorough) wrong = UnreadablePicture(desk);
  if (wrong.empty() && thorough) wrong = ChangedPicture(desk, last.Kept);
  return wrong;
}

std::string WhatIsWrong(Sitting& session, LastSeen& last, bool thorough) {
  const Freedom freedom{std::exchange(session.MayHaveLoaded, false),
                        std::exchange(session.MayHaveSetAxis, false)};
  return WhatIsWrong(session.Desk(), freedom, last, thorough);
}

}  // namespace orvane
