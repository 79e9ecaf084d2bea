// orvane-background-maker FOLDER: writes bgr1.gif to bgr5.gif there.

#include <fstream>
#include <iostream>

#include "background_maker/background_maker.h"
#include "draw/backgrounds.h"

int main(int count, char** words) {
  if (count != 2) {
    std::cerr << "usage: orvane-background-maker FOLDER\n";
    return 2;
  }
  for (int index = 0; index < orvane::kBackgroundCount; ++index) {
    const std::string path = std::string(words[1]) + "/bgr" + std::to_string(index + 1) + ".gif";
    const std::string bytes = orvane::backgrounds::BackgroundFile(index);
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    if (bytes.empty() || !file.flush()) {
      std::cerr << path << " could not be written\n";
      return 1;
    }
  }
}
