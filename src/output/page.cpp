#include "output/page.h"

namespace orvane {
namespace {

// The title from its eleventh character on.
std::string PageTitle(const Orvane_Desk& desk) {
  const std::string& title = desk.main.Caption;
  return title.size() < 10 ? std::string() : title.substr(10);
}

}  // namespace

void ComposePair(Orvane_Desk& desk) {
  PrintPage& page = desk.page;
  const bool forms = desk.stereo.EnantiomerOn == 1;
  page.R_Form.Visible = forms;
  page.L_Form.Visible = forms;
  // "Sterio" here and "Stereo" on the screen: on purpose.
  page.Str_Entm.Caption = forms ? "Enantiomers" : "Sterio Pair";
  page.Str_Entm.Visible = true;
  page.Mol_Name.Visible = false;
  page.Image1.Visible = false;
  page.AA_name.Caption = PageTitle(desk);
  page.AA_name.Visible = true;
  page.L_Img.SetPicture(desk.main.L_Img.Shown());
  page.R_Img.SetPicture(desk.main.R_Img.Shown());
}

void ComposeSurface(Orvane_Desk& desk) {
  PrintPage& page = desk.page;
  page.R_Form.Visible = false;
  page.L_Form.Visible = false;
  page.AA_name.Visible = false;
  page.Str_Entm.Visible = false;
  page.L_Img.SetPicture(nullptr);  // the large picture does not cover all of them
  page.R_Img.SetPicture(nullptr);
  page.Image1.SetPicture(desk.main.Picture1.Image());
  page.Image1.Visible = true;
  page.Mol_Name.Caption = PageTitle(desk);
  page.Mol_Name.Visible = true;
}

}  // namespace orvane
