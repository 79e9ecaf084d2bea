#include "replay/player.h"

#include "replay/actions_table.h"
#include "replay/script_line.h"
#include "shell/start_up.h"

namespace orvane {
namespace {

constexpr std::string_view kPlotPicture = "Ramachandran.Area(";

void ListenTo(Player& player) {
  for (Window* window : player.desk->windows) {
    window->Watcher = &player.watcher;
    for (Control* control : window->Controls) {
      auto* picture = dynamic_cast<PictureBox*>(control);
      if (!player.IsTracing || picture == nullptr) continue;
      if (!picture->FullName().starts_with(kPlotPicture)) continue;
      player.plot_lines.push_back(std::make_unique<PlotLines>(player.output, picture->Index));
      picture->Trace = player.plot_lines.back().get();
    }
  }
  if (player.IsTracing) player.desk->main.Picture1.Trace = &player.surface_lines;
}

std::string PlayAction(Player& player, ScriptLine& words) {
  Arguments given;
  std::string_view word = words.NextWord();
  if (word == "force") {
    given.reach = Reach::Forced;
    word = words.NextWord();
  }
  const Action* action = FindAction(word);
  if (action == nullptr) return "there is no action \"" + std::string(word) + "\"";
  std::string complaint = ReadArguments(*action, *player.desk, words, given);
  if (complaint.empty()) action->Play(player, given);
  return complaint;
}

}  // namespace

Player::Player(std::ostream& stream, bool trace) : IsTracing(trace), output{stream} {
  StartDesk(*this);
}

void StartDesk(Player& player) {
  player.output.Silent = true;
  player.desk.reset();
  player.plot_lines.clear();
  player.platform.emplace(player.output);
  player.desk = StartDesk(*player.platform);
  player.output.Silent = false;
  ListenTo(player);
}

std::string PlayLine(Player& player, std::string_view line) {
  line = WithoutReturn(line);
  if (SaysNothing(line)) return "";
  ScriptLine words(line);
  return PlayAction(player, words);
}

int PlayScript(std::istream& script, std::ostream& stream, std::ostream& errors, bool trace) {
  Player player(stream, trace);
  std::string line;
  for (int number = 1; !player.platform->Ended && std::getline(script, line); ++number) {
    const std::string complaint = PlayLine(player, line);
    if (complaint.empty()) continue;
    stream.flush();
    errors << "error: line " << number << ": " << complaint << '\n';
    return 2;
  }
  stream.flush();
  return 0;
}

}  // namespace orvane
