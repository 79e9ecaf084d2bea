#include "windows/plot_window.h"

#include "windows/plot_window_table.h"

namespace orvane {

PlotWindow::PlotWindow() : Window(PlotWindowTable(), "Ramachandran.") {
  RamPlt_H.BackColor = Rgb(255, 255, 255);
  for (MapArea& area : Area) area.SetBackColor(Rgb(255, 206, 206));
  Label1[0].BackColor = Rgb(249, 137, 121);
  Label1[1].BackColor = Rgb(255, 159, 159);
  Label1[2].BackColor = Rgb(255, 206, 206);
}

}  // namespace orvane
