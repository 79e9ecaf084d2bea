#include "commands/measure_buttons.h"

#include "draw/redraw_chain.h"
#include "measure/angle.h"
#include "measure/distance.h"
#include "measure/picks.h"
#include "measure/readout.h"
#include "measure/torsion.h"
#include "windows/panels.h"

namespace orvane {
namespace {

// MeasureOn is 1 for the length of a measurement, even of one that fails.
class WhileMeasuring {
 public:
  explicit WhileMeasuring(Measure& measure) : measure_(measure) { measure_.MeasureOn = 1; }
  WhileMeasuring(const WhileMeasuring&) = delete;
  WhileMeasuring& operator=(const WhileMeasuring&) = delete;
  ~WhileMeasuring() { measure_.MeasureOn = 0; }

 private:
  Measure& measure_;
};

void MeasureBy(Orvane_Desk& desk, void (*routine)(Orvane_Desk&)) {
  HidePanels(desk.main);
  if (desk.molecule.MoleculeReady != 1) return desk.platform.Beep();
  desk.drawing.LabelsOn = 0;
  RepaintPasses(desk);
  {
    const WhileMeasuring speaking(desk.measure);
    routine(desk);
  }
  BeginPicks(desk);
}

}  // namespace

void Bt3_Dts_Click(Orvane_Desk& desk) { MeasureBy(desk, Distance); }
void Bt3_Ang_Click(Orvane_Desk& desk) { MeasureBy(desk, Angle3); }
void Bt3_Trg_Click(Orvane_Desk& desk) { MeasureBy(desk, Torsion4); }

void P_Dst_Show_Click(Orvane_Desk& desk) {
  HidePanels(desk.main);
  EmptyReadout(desk);
}

}  // namespace orvane
