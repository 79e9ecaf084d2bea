// What a fuzzer does with some bytes: one body for each thing that the program reads. Each returns
// what is wrong, or nothing. The sanitizers catch the crashes.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace orvane {

using Bytes = std::span<const unsigned char>;

std::string ReadAsMolecule(Bytes bytes);  // a molecule text, through the loader to the picture
std::string ReadAsReplay(Bytes bytes);    // a replay script, with a check after each line
std::string ReadAsColours(Bytes bytes);   // three lines, typed as red, green and blue
std::string ReadAsGif(Bytes bytes);       // a recording to which one frame is added

struct FuzzBody {
  std::string_view Name;  // of its folder in corpus/
  std::string (*Read)(Bytes bytes);
};
inline constexpr auto kFuzzBodies = std::to_array<FuzzBody>({
    {"molecule", ReadAsMolecule},
    {"replay", ReadAsReplay},
    {"rgb", ReadAsColours},
    {"gif", ReadAsGif},
});

}  // namespace orvane
