// The direction of the arrows: who includes whom, as the map allows it.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "house/source_tree.h"

namespace orvane::house {
namespace {

bool IsSkin(std::string_view room) { return room == "desktop" || room == "replay"; }

bool IsToolkit(const std::string& header) {
  return header.size() > 1 && header[0] == 'Q' && (std::isupper(header[1]) || header[1] == 't');
}

bool Allows(const MapRow& row, const std::string& room) {
  return room == row.Room || (row.EveryRoom && !IsSkin(room)) ||
         std::find(row.MayInclude.begin(), row.MayInclude.end(), room) != row.MayInclude.end();
}

// What each file includes of ours.
using Graph = std::map<std::string, std::set<std::string>>;

Graph OwnIncludes() {
  Graph graph;
  for (const Inclusion& i : Inclusions()) {
    if (i.Quoted) graph[i.From].insert(i.Target);
  }
  return graph;
}

// Every file that `from` reaches, however far.
std::set<std::string> Reached(const Graph& graph, const std::string& from) {
  std::set<std::string> reached;
  std::vector<std::string> open{from};
  while (!open.empty()) {
    const auto found = graph.find(open.back());
    open.pop_back();
    if (found == graph.end()) continue;
    for (const std::string& next : found->second) {
      if (reached.insert(next).second) open.push_back(next);
    }
  }
  return reached;
}

TEST(Includes, GoOnlyWhereTheMapAllows) {
  std::map<std::string, MapRow> rows;
  for (const MapRow& row : Map()) rows[row.Room] = row;
  ASSERT_FALSE(rows.empty());
  for (const Inclusion& i : Inclusions()) {
    if (!i.Quoted) continue;
    EXPECT_TRUE(Allows(rows[RoomOf(i.From)], RoomOf(i.Target)))
        << "src/" << i.From << ":" << i.Line << " includes " << i.Target;
  }
}

TEST(Includes, NameTheRoomOfEachFile) {
  for (const Inclusion& i : Inclusions()) {
    if (!i.Quoted || !i.Target.ends_with(".h")) continue;  // a list made at build time is no header
    EXPECT_TRUE(ProjectHas("src/" + i.Target))
        << "src/" << i.From << ":" << i.Line << " includes " << i.Target;
  }
}

TEST(Includes, BringTheToolkitIntoTheDesktopSkinOnly) {
  for (const Inclusion& i : Inclusions()) {
    if (RoomOf(i.From) == "desktop") continue;
    EXPECT_FALSE(IsToolkit(i.Target)) << "src/" << i.From << ":" << i.Line << " " << i.Target;
  }
}

TEST(Includes, OfHeadersFormNoRing) {
  const Graph graph = OwnIncludes();
  for (const auto& [file, targets] : graph) {
    EXPECT_FALSE(Reached(graph, file).contains(file)) << file << " includes itself in the end";
  }
}

// A field's room can be read and tested without the rest of the desk.
TEST(Includes, OfStateStandOnTheGroundAndOnOtherState) {
  const Graph graph = OwnIncludes();
  const auto state = graph.find("desk/orvane_desk.h");
  ASSERT_NE(state, graph.end());
  for (const std::string& header : state->second) {
    EXPECT_FALSE(Reached(graph, header).contains("desk/orvane_desk.h")) << header;
  }
}

// A header of operations declares; only its source knows whom it calls. So rooms may call each
// other both ways.
TEST(Includes, OfOperationsBringInNoOperationsOfAnotherRoom) {
  const Graph graph = OwnIncludes();
  const std::set<std::string> state = Reached(graph, "desk/orvane_desk.h");
  for (const auto& [file, targets] : graph) {
    const std::string room = RoomOf(file);
    if (!file.ends_with(".h") || IsSkin(room)) continue;
    for (const std::string& target : targets) {
      const std::string other = RoomOf(target);
      const bool declares_state = state.contains(target) || target == "desk/orvane_desk.h";
      EXPECT_TRUE(other == room || other == "runtime" || other == "controls" || declares_state)
          << file << " includes " << target;
    }
  }
}

}  // namespace
}  // namespace orvane::house
