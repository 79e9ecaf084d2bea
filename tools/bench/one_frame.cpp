// orvane-one-frame: this program's side of the comparison with its peers.
//   orvane-one-frame structure FILE   the double strand, as every viewer of molecules reads it
//   (PDB) orvane-one-frame frame FILE       chooses it, draws balls and sticks, turns it a step,
//   and writes
//                                     the picture as GIF
#include <cstdio>
#include <fstream>
#include <memory>
#include <string_view>

#include "bench_desk.h"
#include "core/record.h"
#include "desk/actions.h"
#include "output/picture_gif.h"
#include "raster/raster.h"

namespace orvane::bench {
namespace {

// A record is a PDB line up to its coordinates. After them come occupancy, temperature factor and
// the element, which here is the first letter of every atom's name.
std::string PdbOf(std::string_view records) {
  std::string lines;
  for (std::size_t at = 0; at < records.size(); at += kRecordWidth) {
    const std::string_view record = records.substr(at, kRecordWidth - 1);
    const std::string_view name = Cut(record, kAtomNameField);
    lines += std::string(record) + "  1.00  0.00           " + name[name.find_first_not_of(' ')] +
             "  \n";
  }
  return lines + "END\n";
}

std::string TurnedFrame(BenchDesk& bench) {
  MainWindow& main = bench.desk.main;
  Click(bench.desk, main.D_StB);
  StepBar(bench.desk, main.VScroll1, 1);
  const FileBytes gif = GifOf(Raster().Paint(*main.Picture1.Image()));
  return {gif.begin(), gif.end()};
}

}  // namespace
}  // namespace orvane::bench

int main(int count, char** words) {
  using namespace orvane::bench;
  const std::string_view what = count == 3 ? words[1] : "";
  if (what != "structure" && what != "frame") {
    std::fputs("orvane-one-frame structure|frame FILE\n", stderr);
    return 2;
  }
  const auto bench = std::make_unique<BenchDesk>();
  Select(*bench, bench->desk.main.DNA_Lst, "DNA3");
  std::ofstream file(words[2], std::ios::binary);
  file << (what == "frame" ? TurnedFrame(*bench) : PdbOf(bench->desk.molecule.MolText));
  file.close();
  if (!file) std::perror(words[2]);
  return file ? 0 : 1;
}
