// orvane-front-maker FOLDER: writes protein.frames and dna.frames there, ten frames each of a helix
// and of the double strand turning about the upright axis, and author.frames, one frame of alanine,
// all drawn by the desk itself.

#include <array>
#include <fstream>
#include <iostream>

#include "front_maker/front_maker.h"

int main(int count, char** words) {
  if (count != 2) {
    std::cerr << "usage: orvane-front-maker FOLDER\n";
    return 2;
  }
  const std::string folder = words[1];
  for (const auto& [name, bytes] : {std::pair{"/protein.frames", orvane::ProteinFramesAsBytes()},
                                    std::pair{"/dna.frames", orvane::DnaFramesAsBytes()},
                                    std::pair{"/author.frames", orvane::AuthorFrameAsBytes()}}) {
    std::ofstream file(folder + name, std::ios::binary);
    file << bytes;
    if (!file.flush()) {
      std::cerr << folder << name << " could not be written\n";
      return 1;
    }
  }
}
