// The desk: the one object that owns every room's state and every control, for the whole run.
#pragma once

#include <vector>

#include "controls/platform.h"
#include "desk/catalogue.h"
#include "desk/colours.h"
#include "desk/drawing.h"
#include "desk/generator.h"
#include "desk/measure.h"
#include "desk/molecule.h"
#include "desk/question.h"
#include "desk/recording.h"
#include "desk/selection.h"
#include "desk/shell.h"
#include "desk/stereo.h"
#include "desk/survey.h"
#include "desk/view.h"
#include "desk/walked_atom.h"
#include "windows/information_windows.h"
#include "windows/main_window.h"
#include "windows/plot_window.h"
#include "windows/print_page.h"

namespace orvane {

// Megabytes large: made once, on the heap, and never copied. There is no other state.
struct Orvane_Desk {
  // Every field at its start value; no control answers yet. StartDesk of shell/start_up.h makes a
  // desk that does.
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
  Question question;

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
