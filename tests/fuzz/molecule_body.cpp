#include <algorithm>

#include "core/record.h"
#include "desk_fixture.h"
#include "fuzz/bodies.h"
#include "random/desk/always.h"
#include "raster/raster.h"

namespace orvane {
namespace {

constexpr int kMostAtoms = 596;

// The records at the beginning of a text, each whole except perhaps the last.
int RecordsIn(std::string_view text) {
  int count = 0;
  while (text.starts_with("AT")) {
    ++count;
    text.remove_prefix(std::min<std::size_t>(text.size(), kRecordWidth));
  }
  return count;
}

}  // namespace

std::string ReadAsMolecule(Bytes bytes) {
  static DeskAtWork work;
  static Raster raster;
  Orvane_Desk& desk = work.desk;
  const std::string text(bytes.begin(), bytes.end());

  work.platform.Effects.clear();
  desk.selection.StockPending = 1;
  desk.molecule.MolText = text;
  Click(desk, desk.main.Bt_M_Ld, Reach::Forced);

  const bool failed = !work.platform.Effects.empty();
  const int records = RecordsIn(text);
  const int atoms = desk.molecule.AtomCount;
  if (atoms > records || atoms > kMostAtoms) return "more atoms than records";
  if (!failed && atoms != records) return "a record was passed over";
  if (desk.molecule.MolText != text) return "the text was changed";
  for (int i = 1; i <= atoms; ++i) {
    if (desk.molecule.AtomSerial[i] != i) return "an atom has another number than its place";
  }
  raster.Paint(*desk.main.Picture1.Image(), 1);
  LastSeen last;
  last.InRange = false;         // a text may contain any number
  last.LoadsWereWhole = false;  // and may not be a text of records
  return WhatIsWrong(desk, {true, true}, last, true);
}

}  // namespace orvane
