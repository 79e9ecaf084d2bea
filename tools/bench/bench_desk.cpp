#include "bench_desk.h"

#include <algorithm>
#include <cstdio>

#include "desk/actions.h"

namespace orvane::bench {
namespace {

void PressSizeKey(Orvane_Desk& desk, std::string_view caption, int times) {
  for (Button& key : desk.main.Sz_Balls) {
    if (key.Caption.Get() != caption) continue;
    for (int i = 0; i < times; ++i) Press(desk, key, kLeftButton, 1, 1);
  }
}

}  // namespace

BenchDesk::BenchDesk() { PlayLine(player, "enter"); }

int RowOf(const List& list, std::string_view key) {
  const auto& rows = list.Rows.Get();
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].starts_with(key)) return static_cast<int>(row);
  }
  return -1;
}

void Select(BenchDesk& bench, List& list, std::string_view key) {
  SelectRow(bench.desk, list, RowOf(list, key));
}

HeaviestDesk::HeaviestDesk() {
  Select(*this, desk.main.DNA_Lst, "DNA3");
  Click(desk, desk.main.D_StB);
  PressSizeKey(desk, "Bs+", 3);
  PressSizeKey(desk, "Mw+", 5);
  Click(desk, desk.main.Bt3_Label);
  Click(desk, desk.main.Bt3_HBD);
}

bool CanMakeHeaviest() {
  const HeaviestDesk bench;
  const Drawing& drawing = bench.desk.drawing;
  const auto picture = bench.desk.main.Picture1.Image();
  const auto count = [&](StrokeKind kind) {
    return std::count_if(picture->Strokes.begin(), picture->Strokes.end(),
                         [kind](const Stroke& stroke) { return stroke.Kind == kind; });
  };
  const bool can = bench.desk.molecule.AtomCount == 123 && drawing.BallSize == 6 &&
                   drawing.BondWidth == 6 && drawing.HBondShown == 1 &&
                   count(StrokeKind::Circle) == 123 && count(StrokeKind::Print) == 123;
  if (!can) std::fputs("the heaviest picture is not what it should be\n", stderr);
  return can;
}

}  // namespace orvane::bench
