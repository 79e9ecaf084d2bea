#include "commands/print.h"

#include "output/page.h"

namespace orvane {
namespace {

constexpr std::string_view kCouldNotPrint =
    "Could'nt print.\nCheck if the Printer is installed properly.";

void PrintOrTell(Orvane_Desk& desk, Window& page) {
  if (!desk.platform.PrintWindow(page)) desk.platform.MessageBox(kCouldNotPrint);
}

}  // namespace

void PrImg_Click(Orvane_Desk& desk) {
  desk.main.P_Clr_Holder.Visible = false;
  if (desk.stereo.SplitViewOn == 1) {
    ComposePair(desk);
    PrintOrTell(desk, desk.page);
  } else if (desk.stereo.SplitViewOn == 0) {
    ComposeSurface(desk);
    PrintOrTell(desk, desk.page);
  } else if (desk.stereo.SplitViewOn == 2) {
    PrintOrTell(desk, desk.plot);
  }
}

}  // namespace orvane
