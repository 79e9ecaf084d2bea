#include "random_desk/session.h"

#include <cmath>
#include <utility>

#include "controls/kinds.h"
#include "desk/actions.h"
#include "draw/surface.h"
#include "replay/script_line.h"

namespace orvane {
namespace {

constexpr std::string_view kNest = "#nest ";
constexpr std::string_view kDiskFull = "the disk is full";

std::string PlayOne(Sitting& session, std::string_view line);

void ListenToPending(Sitting& session) {
  session.player.platform->PendingEvents = [&session] {
    // What is played may let events run in its turn, and finds what is left.
    while (!session.Pending.empty()) {
      const std::string line = session.Pending.front();
      session.Pending.pop_front();
      const std::string complaint = PlayOne(session, line);
      if (complaint.empty() || !session.NestedComplaint.empty()) continue;
      session.NestedComplaint = "\"" + line + "\" that nests in it: " + complaint;
    }
  };
}

void PlayResize(Sitting& session, ScriptLine& words) {
  const std::string_view name = words.NextWord();
  const int state = WholeNumber(words.NextWord()).value_or(0);
  Place now;
  for (int* side : {&now.Left, &now.Top, &now.Width, &now.Height}) {
    *side = WholeNumber(words.NextWord()).value_or(0);
  }
  for (Window* window : session.Desk().windows) {
    if (window->Name == name) Resize(session.Desk(), *window, now, static_cast<WindowState>(state));
  }
}

// As a skin does it: the surfaces and the snapshots that stand on the screen now.
void Look(Sitting& session, double scale) {
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
}

// What no word below stands for is a comment, here too.
std::string PlayRemark(Sitting& session, std::string_view remark) {
  if (remark.starts_with(kNest)) {
    session.Pending.emplace_back(remark.substr(kNest.size()));
    return "";
  }
  ScriptLine words(remark);
  const std::string_view word = words.NextWord();
  if (word == "#save-fails") session.player.platform->SaveFails = kDiskFull;
  if (word == "#saves") session.player.platform->SaveFails.clear();
  if (word == "#resize") PlayResize(session, words);
  if (word == "#look") Look(session, RealNumber(words.NextWord()).value_or(1));
  if (word != "#enter" && word != "#focus") return "";
  Control* control = session.Desk().FindControl(words.NextWord());
  if (control == nullptr) return "there is no such control";
  word == "#enter" ? PointerEnters(session.Desk(), *control) : FocusComes(session.Desk(), *control);
  return "";
}

bool Holds(std::string_view line, std::string_view words) {
  return line.find(words) != std::string_view::npos;
}

std::string PlayOne(Sitting& session, std::string_view line) {
  if (line.starts_with('#')) return PlayRemark(session, line);
  const bool starts_anew = line == "restart";
  session.MayHaveLoaded |= starts_anew || Holds(line, "select ") || Holds(line, "click Bt_M_Ld");
  session.MayHaveSetAxis |= Holds(line, "release Picture1") || Holds(line, "move Picture1");
  std::string complaint = PlayLine(session.player, line);
  if (starts_anew) {
    session.Pending.clear();
    ListenToPending(session);
  }
  return complaint;
}

}  // namespace

std::streamsize FailureTally::xsputn(const char* text, std::streamsize length) {
  const std::string_view line(text, static_cast<std::size_t>(length));
  if (line.starts_with("failure ")) ++Counts[std::string(line)];
  return length;
}

Sitting::Sitting() { ListenToPending(*this); }

std::string PlayRandomLine(Sitting& session, std::string_view line) {
  const std::string complaint = PlayOne(session, line);
  const std::string nested = std::exchange(session.NestedComplaint, "");
  return complaint.empty() ? nested : complaint;
}

}  // namespace orvane
