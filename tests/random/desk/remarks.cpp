#include "random/desk/remarks.h"

#include <cmath>

#include "controls/kinds.h"
#include "controls/surface.h"
#include "desk/actions.h"
#include "narration/atom_walk.h"
#include "ramachandran/map_walk.h"
#include "replay/script_line.h"

namespace orvane {
namespace {

constexpr std::string_view kDiskFull = "the disk is full";

Window* WindowOf(Sitting& session, std::string_view name) {
  for (Window* window : session.Desk().windows) {
    if (window->Name == name) return window;
  }
  return nullptr;
}

std::string Nest(Sitting& session, ScriptLine& words) {
  session.Pending.emplace_back(words.Rest);
  return "";
}

std::string LetSavesFail(Sitting& session, ScriptLine&) {
  session.player.platform->SaveFails = kDiskFull;
  return "";
}

std::string LetSavesWork(Sitting& session, ScriptLine&) {
  session.player.platform->SaveFails.clear();
  return "";
}

template <void (*kComes)(Orvane_Desk&, Control&)>
std::string ComeTo(Sitting& session, ScriptLine& words) {
  Control* control = session.Desk().FindControl(words.NextWord());
  if (control == nullptr) return "there is no such control";
  kComes(session.Desk(), *control);
  return "";
}

std::string ResizeIt(Sitting& session, ScriptLine& words) {
  Window* window = WindowOf(session, words.NextWord());
  if (window == nullptr) return "there is no such window";
  const int state = WholeNumber(words.NextWord()).value_or(0);
  Place now;
  for (int* side : {&now.Left, &now.Top, &now.Width, &now.Height}) {
    *side = WholeNumber(words.NextWord()).value_or(0);
  }
  Resize(session.Desk(), *window, now, static_cast<WindowState>(state));
  return "";
}

std::string CloseIt(Sitting& session, ScriptLine& words) {
  Window* window = WindowOf(session, words.NextWord());
  if (window == nullptr) return "there is no such window";
  if (window->Visible) CloseWindow(session.Desk(), *window);
  return "";
}

template <void (*kUse)(Orvane_Desk&, FileList&, std::string_view)>
std::string UseTheChooser(Sitting& session, ScriptLine& words) {
  auto* list = dynamic_cast<FileList*>(session.Desk().FindControl(words.NextWord()));
  if (list == nullptr) return "there is no such list of files";
  kUse(session.Desk(), *list, words.Rest);
  return "";
}

struct Step {
  std::string_view Name;
  void (*Take)(Orvane_Desk& desk);
};
constexpr Step kWalk[] = {{"next", WalkToNext},
                          {"previous", WalkToPrevious},
                          {"first", WalkToFirst},
                          {"last", WalkToLast},
                          {"pick", PickWalked}};
constexpr Step kMap[] = {{"next", ShowNextMapName}, {"previous", ShowPreviousMapName}};

template <const auto& kSteps>
std::string TakeStep(Sitting& session, ScriptLine& words) {
  const std::string_view name = words.NextWord();
  for (const Step& step : kSteps) {
    if (step.Name != name) continue;
    // A pick ends when a button is released over the picture.
    session.MayHaveSetAxis |= name == "pick";
    step.Take(session.Desk());
    return "";
  }
  return "there is no such step";
}

// As a skin does it: the surfaces and the snapshots that are on the screen now.
std::string Look(Sitting& session, ScriptLine& words) {
  const double scale = RealNumber(words.NextWord()).value_or(1);
  for (const Window* window : session.Desk().windows) {
    for (Control* control : window->Controls) {
      if (!control->IsOpenToUser()) continue;
      std::shared_ptr<const Picture> picture;
      if (const auto* box = dynamic_cast<const PictureBox*>(control)) picture = box->Image();
      if (const auto* image = dynamic_cast<const ImageBox*>(control)) picture = image->Shown();
      if (!picture) continue;
      const auto width = static_cast<int>(std::lround(picture->Width * scale));
      const auto height = static_cast<int>(std::lround(picture->Height * scale));
      session.canvas.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
      session.raster.Paint(*picture, scale, session.canvas.data(), width, height, width);
    }
  }
  return "";
}

struct Remark {
  std::string_view Word;
  std::string (*Play)(Sitting& session, ScriptLine& words);
};
constexpr Remark kRemarks[] = {
    {"#nest", Nest},
    {"#save-fails", LetSavesFail},
    {"#saves", LetSavesWork},
    {"#enter", ComeTo<PointerEnters>},
    {"#focus", ComeTo<FocusComes>},
    {"#resize", ResizeIt},
    {"#close", CloseIt},
    {"#folder", UseTheChooser<OpenFolder>},
    {"#choose", UseTheChooser<ChooseFile>},
    {"#walk", TakeStep<kWalk>},
    {"#map", TakeStep<kMap>},
    {"#look", Look},
};

}  // namespace

std::string PlayRemark(Sitting& session, std::string_view remark) {
  ScriptLine words(remark);
  const std::string_view word = words.NextWord();
  for (const Remark& row : kRemarks) {
    if (row.Word == word) return row.Play(session, words);
  }
  return "";
}

}  // namespace orvane
