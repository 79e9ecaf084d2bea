// growth_bench [PICTURE.svg]: the time that a structure takes as it grows from 5 to 596 atoms, the
// most that a text can hold, and the power of the atoms with which it grows; also as a picture.
#include <cmath>
#include <cstdio>
#include <fstream>

#include "bench_desk.h"
#include "canvas.h"
#include "core/loader.h"
#include "draw/redraw_chain.h"
#include "growth_picture.h"
#include "measure/hydrogen_bonds.h"
#include "ramachandran/survey.h"
#include "ratios.h"
#include "spring.h"

namespace orvane::bench {
namespace {

// A desk with a chain of that many atoms on it, drawn with balls.
struct ChainDesk : BenchDesk {
  explicit ChainDesk(benchmark::State& state) {
    desk.molecule.MolText = SpringOf(static_cast<int>(state.range(0)));
    LoadMolecule(desk);
    if (desk.molecule.AtomCount != state.range(0)) state.SkipWithError("not all were loaded");
    if (desk.molecule.BondCount != state.range(0) - 1) state.SkipWithError("it is not one chain");
  }
};

void Load(benchmark::State& state) {
  ChainDesk bench(state);
  for (auto unused : state) LoadMolecule(bench.desk);
}
void Repaint(benchmark::State& state) {
  ChainDesk bench(state);
  Canvas canvas;
  for (auto unused : state) {
    RedrawView(bench.desk);
    canvas.Paint(*bench.desk.main.Picture1.Image());
  }
}
void HydrogenBonds(benchmark::State& state) {
  ChainDesk bench(state);
  for (auto unused : state) FindHydrogenBonds(bench.desk);
}
void SurveyTorsions(benchmark::State& state) {
  ChainDesk bench(state);
  for (auto unused : state) TorsionSurvey(bench.desk);
  if (bench.desk.survey.PhiCount == 0) state.SkipWithError("no residue was surveyed");
}

constexpr int kSizes[] = {5, 15, 35, 75, 150, 300, 596};
constexpr int kLeastToSurvey = 15;  // the plot's scale needs two residues after the first

struct Row {
  const char* Name;
  const char* Words;
  void (*Run)(benchmark::State&);
  const char* Colour;
  int From;
};
constexpr Row kRows[] = {
    {"Load", "load", Load, "#0B6E7F", 5},
    {"HydrogenBonds", "hydrogen bonds", HydrogenBonds, "#1E4FBF", 5},
    {"Repaint", "repaint", Repaint, "#C62828", 5},
    {"SurveyTorsions", "survey", SurveyTorsions, "#2E7D32", kLeastToSurvey},
};

void RegisterAll() {
  for (const Row& row : kRows) {
    auto* bench = benchmark::RegisterBenchmark(row.Name, row.Run);
    for (const int atoms : kSizes) {
      if (atoms >= row.From) bench->Arg(atoms);
    }
  }
}

Curve CurveOf(const Ratios& ratios, const Row& row) {
  Curve curve{row.Words, row.Colour, {}};
  for (const int atoms : kSizes) {
    const double seconds = ratios.Seconds(std::string(row.Name) + "/" + std::to_string(atoms));
    if (seconds > 0) curve.Points.push_back({static_cast<double>(atoms), 1e6 * seconds});
  }
  return curve;
}

}  // namespace
}  // namespace orvane::bench

int main(int argc, char** argv) {
  using namespace orvane::bench;
  RegisterAll();
  Ratios ratios;
  RunAll(argc, argv, ratios);
  std::vector<Curve> curves;
  for (const Row& row : kRows) {
    curves.push_back(CurveOf(ratios, row));
    std::printf("%-52s %8.2f\n", (std::string(row.Words) + ", power of the atoms").c_str(),
                PowerAtTheEnd(curves.back()));
  }
  if (argc > 1) {
    std::ofstream file(argv[1]);
    file << GrowthPicture(curves);
    file.close();
    if (!file) std::perror(argv[1]);
    return file ? 0 : 1;
  }
  return 0;
}
