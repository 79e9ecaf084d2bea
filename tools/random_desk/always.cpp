#include "random_desk/always.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "draw/surface.h"
#include "output/recording.h"

namespace orvane {
namespace {

constexpr int kMostAtoms = 596;
constexpr double kFarFromTheEnd = 1e150;  // no one action takes a smaller number beyond all numbers

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

struct Captions {
  const Control& Toggle;
  std::initializer_list<std::string_view> Known;
};

std::string UnknownCaption(const MainWindow& main) {
  const Captions rows[] = {
      {main.Bt_BlS, {"Ball-Stick", "Wire-Frame"}},
      {main.Bt_CA_Trace, {"Ca-trace OFF", "Ca-trace ON"}},
      {main.Bt3_Label, {"Label Off", "Label On"}},
      {main.Bt3_HBD, {"H-bond Off", "H-bond On"}},
      {main.Bt3_Sterio, {"Stereo Off", "Stereo On", "Sterio Off"}},
      {main.R_G_Stereo, {"Red-Green Stereo Off", "Red-Green Stereo On"}},
      {main.Bt3_Isomers, {"D / L Off", "D / L On", "D/L Off"}},
      {main.Bt3_D_L_Str, {"D/L Nst", "D/L Str", "D / L Nst"}},
  };
  for (const Captions& row : rows) {
    const std::string& caption = row.Toggle.Caption;
    if (std::find(row.Known.begin(), row.Known.end(), caption) == row.Known.end()) {
      return row.Toggle.Name + " reads \"" + caption + "\"";
    }
  }
  return "";
}

// A cleared table has zeros up to the count of the structure that was.
std::string WrongBond(const Molecule& molecule) {
  for (int b = 1; b <= molecule.BondCount; ++b) {
    const int higher = molecule.BondA[b];
    const int lower = molecule.BondB[b];
    const bool is_cleared = higher == 0 && lower == 0;
    if (!is_cleared && (lower < 1 || higher <= lower || higher > kMostAtoms)) {
      return "bond " + std::to_string(b) + " joins " + std::to_string(higher) + " and " +
             std::to_string(lower);
    }
  }
  return "";
}

std::uint64_t DigestOfAsRead(const Molecule& molecule) {
  std::uint64_t digest = 14695981039346656037u;
  const auto mix = [&digest](double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    digest = (digest ^ bits) * 1099511628211u;
    digest ^= digest >> 29;
  };
  for (int i = 1; i <= kMostAtoms; ++i) {
    mix(molecule.AtomX[i]);
    mix(molecule.AtomY[i]);
    mix(molecule.AtomZ[i]);
  }
  return digest;
}

// A zoom has no end, so far beyond the screen the numbers may run out; never before.
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

std::string WrongAxis(const View& view, bool may_be_lost, LastSeen& last) {
  for (const int cell : {int{view.AxisX}, int{view.AxisY}, int{view.AxisZ}}) {
    if (cell != 0 && cell != 1) return "a cell of the axis is " + std::to_string(cell);
  }
  const int live = view.AxisX + view.AxisY + view.AxisZ;
  if (live > 1) return "more than one axis is live";
  if (live == 0 && last.HadAxis && !may_be_lost) return "the axis was lost";
  last.HadAxis = live == 1;
  return "";
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
        // As a snapshot: the surface is not told that somebody looked.
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
  if (wrong.empty()) wrong = UnknownCaption(desk.main);
  if (wrong.empty()) wrong = WrongBond(desk.molecule);
  if (wrong.empty()) wrong = WrongAxis(desk.view, freedom.MayHaveLostAxis, last);
  if (wrong.empty()) wrong = NoNumber(desk.molecule, last);
  if (wrong.empty()) wrong = OutsideItsRange(desk);
  if (wrong.empty() && thorough) wrong = UnreadablePicture(desk);
  return wrong;
}

std::string WhatIsWrong(Sitting& session, LastSeen& last, bool thorough) {
  const Freedom freedom{std::exchange(session.MayHaveLoaded, false),
                        std::exchange(session.MayHaveLostAxis, false)};
  return WhatIsWrong(session.Desk(), freedom, last, thorough);
}

}  // namespace orvane
