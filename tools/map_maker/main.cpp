// orvane-map-maker FOLDER: writes ram0.ppm, ram1.ppm and ram2.ppm there.

#include <fstream>
#include <iostream>

#include "map_maker/map_maker.h"

int main(int count, char** words) {
  if (count != 2) {
    std::cerr << "usage: orvane-map-maker FOLDER\n";
    return 2;
  }
  for (int index = 0; index < 3; ++index) {
    const std::string path = std::string(words[1]) + "/ram" + std::to_string(index) + ".ppm";
    std::ofstream file(path, std::ios::binary);
    file << orvane::maps::MapFile(index);
    if (!file.flush()) {
      std::cerr << path << " could not be written\n";
      return 1;
    }
  }
}
