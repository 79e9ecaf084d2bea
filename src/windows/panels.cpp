#include "windows/panels.h"

namespace orvane {

void HidePanels(MainWindow& window) {
  window.P_Dir_Holder.Visible = false;
  window.V_RGB_H.Visible = false;
  window.P_Clr_Holder.Visible = false;
}

}  // namespace orvane
