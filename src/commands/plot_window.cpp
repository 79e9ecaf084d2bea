#include "commands/plot_window.h"

#include "ramachandran/map_names.h"
#include "ramachandran/map_pictures.h"
#include "ramachandran/survey.h"

namespace orvane {
namespace {

// Captions of the frame by structure; for any other structure nothing is set.
struct PlotCaption {
  std::string Catalogue::*Text;
  std::string_view Caption;
};
constexpr PlotCaption kCaptions[] = {
    {&Catalogue::TextAlfa, "Ramachandran Plot: Right Handed A-Helix"},
    {&Catalogue::TextBeta, "Ramachandran Plot: B-Strand"},
    {&Catalogue::TextPbs, "Ramachandran Plot: Parallel B-pleated Sheet"},
    {&Catalogue::TextApbs, "Ramachandran Plot: Antiparallel B-pleated Sheet"},
};

}  // namespace

void ShowRamachandran(Orvane_Desk& desk) {
  desk.main.P_Clr_Holder.Visible = false;
  desk.main.P_Dir_Holder.Visible = false;
  desk.main.V_RGB_H.Visible = false;
  for (const PlotCaption& row : kCaptions) {
    if (desk.molecule.MolText == desk.stock.*row.Text) {
      desk.plot.RamPlt_H.Caption = std::string(row.Caption);
    }
  }
  desk.plot.Show();
  desk.plot.Area[0].ResetSurface(MapPicture(desk, 0), 0);
  desk.plot.Area[1].ResetSurface(MapPicture(desk, 1), 1);
  desk.plot.Area[3].ResetSurface(MapPicture(desk, 2), 2);
  desk.plot.Area[2].ResetSurface();
  TorsionSurvey(desk);
  desk.stereo.SplitViewOn = 2;
}

void Ramachandran_Close(Orvane_Desk& desk) { desk.plot.Hide(); }

void Area_MouseMove(Orvane_Desk& desk, const Event& event) {
  ShowMapNamesAt(desk.plot, event.Index, event.X, event.Y);
}

void RamPlt_H_MouseMove(Orvane_Desk& desk) { HideMapName(desk.plot, MapName::Extended); }

}  // namespace orvane
