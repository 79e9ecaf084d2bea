// The desk: the one object that owns every room's state and every control, for the whole run.
#pragma once

#include <vector>

#include "controls/platform.h"
#include "core/molecule.h"
#include "core/selection_state.h"
#include "draw/colours_state.h"
#include "draw/drawing_state.h"
#include "measure/measure_state.h"
#include "output/print_page.h"
#include "output/recording_state.h"
#include "ramachandran/plot_window.h"
#include "ramachandran/survey_state.h"
#include "reading/walked_atom.h"
#include "shell/information_windows.h"
#include "shell/main_window.h"
#include "shell/shell_state.h"
#include "stereo/stereo_state.h"
#include "stock/catalogue_state.h"
#include "stock/generator_state.h"
#include "view/view_state.h"

namespace orvane {

// Megabytes large: made once, on the heap, and never copied. There is no other state.
struct Orvane_Desk {
  // Wires the controls to their handlers and runs the start-up of the main window.
  explicit Orvane_Desk(Platform& outside);
  Orvane_Desk(const Orvane_Desk&) = delete;
  Orvane_Desk& operator=(const Orvane_Desk&) = delete;

  Platform& platform;

  Molecule molecule;
  Selection selection;
  Catalogue stock;
  Generator generator;
  View view;
  Drawing drawing;
  Colours colours;
  Stereo stereo;
  Measure measure;
  Survey survey;
  Recording recording;
  WalkedAtom walk;
  Shell shell;

  MainWindow main;
  PlotWindow plot;        // Ramachandran
  PrintPage page;         // Form_Print, never shown
  FrontWindow front;      // Orvane_Front, the splash
  ContentWindow content;  // Content, the overview
  AuthorWindow author;    // Author_frm

  // Every window, the main one first.
  std::vector<Window*> windows{&main, &plot, &page, &front, &content, &author};
  // The control of that full name, "Bt3_Reset" or "Content.Get_in"; nullptr when there is none.
  Control* FindControl(std::string_view full_name) const;
};

}  // namespace orvane
