// The direction of the arrows: who includes whom, and whether the map allows it.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "house/source_tree.h"

namespace orvane::house {
namespace {

bool IsToolkit(const std::string& header) {
  return header.size() > 1 && header[0] == 'Q' && (std::isupper(header[1]) || header[1] == 't');
}

bool Allows(const MapRow& row, const std::string& room) {
  return room == row.Room ||
         std::find(row.MayInclude.begin(), row.MayInclude.end(), room) != row.MayInclude.end();
}

// Which of our files each file includes.
using Graph = std::map<std::string, std::set<std::string>>;

Graph OwnIncludes() {
  Graph graph;
  for (const Inclusion& i : Inclusions()) {
    if (i.Quoted) graph[i.From].insert(i.Target);
  }
  return graph;
}

// Every file that `from` reaches, directly or not.
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

// A row that allows what nobody does guards less than it could.
TEST(Includes, AreAllThatTheMapAllows) {
  std::set<std::pair<std::string, std::string>> made;
  for (const Inclusion& i : Inclusions()) {
    if (i.Quoted) made.emplace(RoomOf(i.From), RoomOf(i.Target));
  }
  for (const MapRow& row : Map()) {
    for (const std::string& other : row.MayInclude) {
      EXPECT_TRUE(made.contains({row.Room, other})) << row.Room << " needs no " << other;
    }
  }
}

// The rows of the map go from the ground up.
TEST(Includes, RunDown) {
  std::set<std::string> below;
  for (const MapRow& row : Map()) {
    for (const std::string& other : row.MayInclude) {
      EXPECT_TRUE(below.contains(other)) << row.Room << " may include " << other;
    }
    below.insert(row.Room);
  }
}

TEST(Includes, NameTheRoomOfEachFile) {
  for (const Inclusion& i : Inclusions()) {
    if (!i.Quoted || !i.Target.ends_with(".h"))
      continue;  // a list made at build time is not a header
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

// A part of the state can be read and tested without the rest of the desk.
TEST(Includes, OfStateDoNotReachTheWholeDesk) {
  const Graph graph = OwnIncludes();
  const auto state = graph.find("desk/orvane_desk.h");
  ASSERT_NE(state, graph.end());
  for (const std::string& header : state->second) {
    EXPECT_FALSE(Reached(graph, header).contains("desk/orvane_desk.h")) << header;
  }
}

}  // namespace
}  // namespace orvane::house
