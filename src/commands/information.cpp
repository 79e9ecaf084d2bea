#include "commands/information.h"

#include "windows/panels.h"

namespace orvane {

void Front_Timer1_Tick(Orvane_Desk& desk) {
  desk.shell.FrontFrame += 1;
  if (desk.shell.FrontFrame == kFrontFrames) desk.shell.FrontFrame = 0;
  const auto frame = static_cast<std::size_t>(desk.shell.FrontFrame);
  desk.front.Image1[0].SetPicture(desk.front.Pro_Image[frame].Shown());
  desk.front.Image1[1].SetPicture(desk.front.DNA_Image[frame].Shown());
}

void Front_Get_in_Click(Orvane_Desk& desk) {
  desk.shell.FromFrontAuthor = 0;
  desk.front.Timer1.Enabled = false;
  desk.front.Hide();
  desk.content.Show();
}

void Front_Author_Click(Orvane_Desk& desk) {
  desk.shell.FromFrontAuthor = -1;
  desk.author.Show();
}

void Content_Get_in_Click(Orvane_Desk& desk) {
  desk.content.Hide();
  desk.main.Show();
}

void EndProgram(Orvane_Desk& desk) { desk.platform.EndProgram(); }

void Content_Close(Orvane_Desk& desk) {
  if (!desk.main.WasShown) return EndProgram(desk);
  Content_Get_in_Click(desk);
}

void Author_Get_in_Click(Orvane_Desk& desk) {
  desk.author.Hide();
  if (desk.shell.FromFrontAuthor != 0) {
    desk.front.Show();
  } else {
    desk.main.Show();
  }
}

void WatN_Click(Orvane_Desk& desk) {
  HidePanels(desk.main);
  desk.main.Hide();
  desk.content.Show();
}

void Cprt_Click(Orvane_Desk& desk) {
  HidePanels(desk.main);
  desk.main.Hide();
  desk.author.Show();
}

void ExitEntry_Click(Orvane_Desk& desk) {
  desk.main.P_Clr_Holder.Visible = false;
  for (Control* control : std::initializer_list<Control*>{
           &desk.main.AA_Lst, &desk.main.Pro_Lst, &desk.main.Nuc_Lst, &desk.main.DNA_Lst,
           &desk.main.Panel3D1, &desk.main.Panel3D2, &desk.main.Panel3D3, &desk.main.Panel3D4}) {
    control->Visible = false;
  }
  desk.selection.ListsShown = 0;
  desk.platform.EndProgram();
}

}  // namespace orvane
