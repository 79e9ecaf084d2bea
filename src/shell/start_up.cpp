#include "shell/start_up.h"

#include "runtime/arithmetic.h"
#include "shell/front_frames.h"
#include "shell/wiring.h"
#include "stock/catalogue.h"

namespace orvane {

std::unique_ptr<Orvane_Desk> StartDesk(Platform& outside) {
  auto desk = std::make_unique<Orvane_Desk>(outside);
  WireControls(*desk);
  Orvane_Desk_Load(*desk);
  return desk;
}

void Orvane_Desk_Load(Orvane_Desk& desk) {
  desk.main.Hide();
  FillInformationPictures(desk);
  desk.front.Show();
  desk.main.RCDP.Enabled = false;
  desk.main.Picture1.ResetSurface();
  desk.molecule.MoleculeReady = 0;  // the wipe above has set it
  AssembleStockTexts(desk.stock);
  desk.main.File1.Pattern = "*.wav;*.aud;*.wa;*.au";
  desk.main.DWn.Enabled = false;
  desk.main.X_Tag[1].Style = {1, 4};
  desk.view.AxisX = 0;
  desk.view.AxisY = 1;
  desk.view.AxisZ = 0;
  FillAminoList(desk);
  FillProteinList(desk);
  FillNucleotideList(desk);
  FillDnaList(desk);
  desk.view.HalfW = RoundToInt16(desk.main.Picture1.ScaleWidth() / 2.0);
  desk.view.HalfH = RoundToInt16(desk.main.Picture1.ScaleHeight() / 2.0);
}

}  // namespace orvane
