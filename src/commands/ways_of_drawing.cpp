#include "commands/ways_of_drawing.h"

#include <optional>

#include "draw/atom_painter.h"
#include "draw/plane_painter.h"
#include "draw/trace_painter.h"
#include "stereo/refresh_tail.h"

namespace orvane {
namespace {

constexpr int kLeave = -1;  // the field stays as it was

enum class Paints { Atoms, Trace, Planes, AtomsThenPlanes };

struct DrawCommand {
  bool NeedsMolecule;
  int BondWidth, BallsOn, DrawFamily, RibbonOn, CartoonOn, PeptideOn, PlanesOnly;
  Paints Painters;
  std::optional<Tail> Composes;
};

// What an entry leaves alone is left on purpose: sticks keep the flag of a ribbon, balls keep the
// width of the bonds, a cartoon keeps PlanesOnly and composes nothing.
// clang-format off
//                                needs  BondWidth BallsOn  Family Ribbon  Cartoon Peptide PlanesOnly
constexpr DrawCommand kWireframe{ true,  1,        0,       0,     0,      0,      0,      0,      Paints::Atoms,           Tail::All};
constexpr DrawCommand kSticks{    true,  3,        0,       0,     kLeave, 0,      0,      0,      Paints::Atoms,           Tail::All};
constexpr DrawCommand kBallStick{ true,  kLeave,   1,       0,     kLeave, 0,      0,      0,      Paints::Atoms,           Tail::All};
constexpr DrawCommand kCaTrace{   false, kLeave,   kLeave,  1,     0,      0,      0,      0,      Paints::Trace,           Tail::All};
constexpr DrawCommand kRibbon{    false, kLeave,   kLeave,  1,     1,      0,      0,      0,      Paints::Trace,           Tail::PairsOnly};
constexpr DrawCommand kCartoon{   false, kLeave,   kLeave,  1,     0,      1,      0,      kLeave, Paints::Trace,           std::nullopt};
constexpr DrawCommand kPlanes{    false, kLeave,   kLeave,  0,     0,      0,      1,      1,      Paints::Planes,          Tail::All};
constexpr DrawCommand kPlanesAnd{ false, kLeave,   1,       0,     0,      0,      1,      0,      Paints::AtomsThenPlanes, Tail::All};
// clang-format on

template <class Field>
void Set(Field& field, int value) {
  if (value != kLeave) field = value;
}

void Paint(Orvane_Desk& desk, Paints painters) {
  if (painters == Paints::Trace) PaintTraceFamily(desk);
  if (painters == Paints::Atoms || painters == Paints::AtomsThenPlanes) PaintAtomFamily(desk);
  if (painters == Paints::Planes || painters == Paints::AtomsThenPlanes) PaintPlanes(desk);
}

void Run(Orvane_Desk& desk, const DrawCommand& command) {
  if (command.NeedsMolecule && desk.molecule.MoleculeReady != 1) return;
  Drawing& drawing = desk.drawing;
  Set(drawing.BondWidth, command.BondWidth);
  Set(drawing.BallsOn, command.BallsOn);
  Set(drawing.DrawFamily, command.DrawFamily);
  Set(drawing.RibbonOn, command.RibbonOn);
  Set(drawing.CartoonOn, command.CartoonOn);
  Set(drawing.PeptideOn, command.PeptideOn);
  Set(drawing.PlanesOnly, command.PlanesOnly);
  Paint(desk, command.Painters);
  if (command.Composes) RefreshTail(desk, *command.Composes);
}

}  // namespace

void D_Wf_Click(Orvane_Desk& desk) { Run(desk, kWireframe); }
void M_Stk_Click(Orvane_Desk& desk) { Run(desk, kSticks); }
void D_StB_Click(Orvane_Desk& desk) { Run(desk, kBallStick); }
void D_Ca_Click(Orvane_Desk& desk) { Run(desk, kCaTrace); }
void M_Rbn_Click(Orvane_Desk& desk) { Run(desk, kRibbon); }
void Cartn_Click(Orvane_Desk& desk) { Run(desk, kCartoon); }
void OPB_Click(Orvane_Desk& desk) { Run(desk, kPlanes); }
void PPB_SB_Click(Orvane_Desk& desk) { Run(desk, kPlanesAnd); }

void Bt_BlS_Click(Orvane_Desk& desk) {
  if (desk.molecule.MoleculeReady != 1) return desk.platform.Beep();
  Button& button = desk.main.Bt_BlS;
  const bool to_balls = button.Caption == "Ball-Stick";
  button.Caption = to_balls ? "Wire-Frame" : "Ball-Stick";
  desk.drawing.BondWidth = to_balls ? 2 : 1;
  desk.drawing.BallsOn = to_balls ? 1 : 0;
  PaintAtomFamily(desk);
}

void Bt_CA_Trace_Click(Orvane_Desk& desk) {
  Button& button = desk.main.Bt_CA_Trace;
  if (desk.drawing.DrawFamily == 1) {
    desk.drawing.DrawFamily = 0;
    button.Caption = "Ca-trace OFF";
    PaintAtomFamily(desk);
  } else {
    desk.drawing.DrawFamily = 1;
    button.Caption = "Ca-trace ON";
    PaintTraceFamily(desk);
  }
}

}  // namespace orvane
