#include "windows/main_window.h"

#include "windows/main_window_table.h"

namespace orvane {

MainWindow::MainWindow() : Window(MainWindowTable(), "") {
  for (std::size_t i = 0; i < P_Clr.size(); ++i) P_Clr[i].BackColor = kSwatches[i].Face;
}

}  // namespace orvane
