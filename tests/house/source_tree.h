// The project's own files, read as data for the tests of the house.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane::house {

// One #include of a source or header under src/.
struct Inclusion {
  std::string From;     // "core/loader.cpp", relative to src/
  std::string Target;   // the text between the brackets or the quotes
  bool Quoted = false;  // "room/file.h", one of our own
  int Line = 0;
};

// "core" from "core/loader.cpp"; the whole text if there is no folder.
std::string RoomOf(std::string_view path);

// The folders directly under src/, sorted.
std::vector<std::string> RoomsOnDisk();

// Every header of the program, the tests and the tools, relative to the project.
std::vector<std::string> Headers();

// Every .h and .cpp under src/, relative to it, sorted.
std::vector<std::string> Sources();

// Every #include of every one of them.
std::vector<Inclusion> Inclusions();

// The text of a file of the project; empty if the file does not exist.
std::string ReadProjectFile(std::string_view path);
bool ProjectHas(std::string_view path);

// A row of the table of folders in docs/architecture.md.
struct MapRow {
  std::string Room;
  std::string ChiefHeader;              // "desk/molecule.h"; empty where a room has none
  std::vector<std::string> MayInclude;  // other rooms; its own goes without saying
};
std::vector<MapRow> Map();

// The same of the table of the folders of `src/desktop` there: rooms are "look", "widgets".
std::vector<MapRow> MapOfDesktop();

// "widgets" of "desktop/widgets/plate.h"; empty where there is no folder in the room.
std::string PartOf(std::string_view path);

}  // namespace orvane::house
