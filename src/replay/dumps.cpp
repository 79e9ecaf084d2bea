#include "replay/dumps.h"

#include <algorithm>

#include "replay/json_line.h"
#include "replay/state_fields.h"

namespace orvane {
namespace {

struct NamedDump {
  std::string_view Name;
  Dump Make;
};

constexpr NamedDump kDumps[] = {
    {"", DumpFields},     {"controls", DumpControls}, {"atoms", DumpAtoms},
    {"bonds", DumpBonds}, {"survey", DumpSurvey},     {"readout", DumpReadout},
};

constexpr int kLastSurveyRow = 500;

void AppendPoint(ObjectLine& line, std::string_view name, const Point& point) {
  const double parts[] = {point.X, point.Y, point.Z};
  line.Array(name, 3, [&](std::string& text, int i) { AppendNumber(text, parts[i]); });
}

void AppendElement(std::string& text, double value) { AppendNumber(text, value); }
void AppendElement(std::string& text, Int16 value) { AppendNumber(text, value); }
void AppendElement(std::string& text, std::string_view value) { AppendText(text, value); }

// Elements 1 to `count`. A count that failed to grow past the end of its array is one above it.
template <class Elements>
void AppendFromOne(ObjectLine& line, std::string_view name, const Elements& elements, int count,
                   int last = kLastSlot) {
  line.Array(name, std::min(count, last),
             [&](std::string& text, int i) { AppendElement(text, elements[i + 1]); });
}

}  // namespace

Dump FindDump(std::string_view name) {
  for (const NamedDump& dump : kDumps) {
    if (dump.Name == name) return dump.Make;
  }
  return nullptr;
}

std::string DumpFields(const Orvane_Desk& desk) {
  ObjectLine line;
  AppendStateFields(line, desk);
  line.String("Caption", desk.main.Caption.Get());
  line.String("P_Dst_Show", desk.main.P_Dst_Show.Caption.Get());

  ObjectLine points;
  AppendPoint(points, "PointA", desk.molecule.PointA);
  AppendPoint(points, "PointB", desk.molecule.PointB);
  AppendPoint(points, "PointC", desk.measure.PointC);
  AppendPoint(points, "PointD", desk.measure.PointD);
  line.Name("Points") += points.Closed();

  ObjectLine bars;
  for (const Control* control : desk.main.Controls) {
    const auto* bar = dynamic_cast<const ScrollBar*>(control);
    if (bar != nullptr) bars.Number(bar->FullName(), bar->Value.Get());
  }
  line.Name("bars") += bars.Closed();
  return line.Closed();
}

std::string DumpControls(const Orvane_Desk& desk) {
  const auto word = [](bool flag) { return flag ? "true" : "false"; };
  ObjectLine line;
  for (const Window* window : desk.windows) {
    for (const Control* control : window->Controls) {
      ObjectLine flags;
      flags.Name("Visible") += word(control->Visible);
      flags.Name("Enabled") += word(control->Enabled);
      flags.String("Caption", control->Caption.Get());
      line.Name(control->FullName()) += flags.Closed();
    }
  }
  return line.Closed();
}

std::string DumpAtoms(const Orvane_Desk& desk) {
  const Molecule& molecule = desk.molecule;
  const int count = molecule.AtomCount;
  ObjectLine line;
  AppendFromOne(line, "AtomX", molecule.AtomX, count);
  AppendFromOne(line, "AtomY", molecule.AtomY, count);
  AppendFromOne(line, "AtomZ", molecule.AtomZ, count);
  AppendFromOne(line, "CurX", molecule.CurX, count);
  AppendFromOne(line, "CurY", molecule.CurY, count);
  AppendFromOne(line, "CurZ", molecule.CurZ, count);
  AppendFromOne(line, "ScrX", molecule.ScrX, count);
  AppendFromOne(line, "ScrY", molecule.ScrY, count);
  AppendFromOne(line, "AtomSerial", molecule.AtomSerial, count);
  AppendFromOne(line, "ResSeq", molecule.ResSeq, count);
  AppendFromOne(line, "AtomName", molecule.AtomName, count);
  AppendFromOne(line, "ResName", molecule.ResName, count);
  return line.Closed();
}

std::string DumpBonds(const Orvane_Desk& desk) {
  const Molecule& molecule = desk.molecule;
  ObjectLine line;
  AppendFromOne(line, "BondA", molecule.BondA, molecule.BondCount);
  AppendFromOne(line, "BondB", molecule.BondB, molecule.BondCount);
  AppendFromOne(line, "BondSerial", molecule.BondSerial, molecule.BondCount);
  AppendFromOne(line, "HBondA", molecule.HBondA, molecule.HBondCount);
  AppendFromOne(line, "HBondB", molecule.HBondB, molecule.HBondCount);
  return line.Closed();
}

std::string DumpSurvey(const Orvane_Desk& desk) {
  ObjectLine line;
  AppendFromOne(line, "PhiList", desk.survey.PhiList, desk.survey.PhiCount, kLastSurveyRow);
  AppendFromOne(line, "PsiList", desk.survey.PsiList, desk.survey.PhiCount, kLastSurveyRow);
  return line.Closed();
}

std::string DumpReadout(const Orvane_Desk& desk) {
  ObjectLine line;
  line.String("Caption", desk.main.Caption.Get());
  line.Number("AtomCount", desk.molecule.AtomCount);
  line.Number("BondCount", desk.molecule.BondCount);
  line.Number("HBondCount", desk.molecule.HBondCount);
  line.String("P_Dst_Show", desk.main.P_Dst_Show.Caption.Get());
  return line.Closed();
}

}  // namespace orvane
