#include "stock_check/bends_page.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include "stock_check/fixed.h"
#include "stock_check/geometry.h"
#include "stock_check/published.h"

namespace orvane::stock_check {

namespace {

struct Advice {
  std::string_view Residue;
  std::string_view Words;    // what a teacher says about it
  std::string_view Instead;  // measures near the published mean, with commas between
};

// clang-format off

constexpr auto kAdvice = std::to_array<Advice>({
    {"GLY", "The two hydrogens of the alpha carbon stand too far from each other and lean towards N.",
     "N CA, CA C, N CA C"},
    {"ALA", "H7 of the methyl group is turned away from H5 and towards H6.",
     "CA CB, CB CA C"},
    {"ASP", "The carboxylate of the side chain hangs askew: OD1 is bent away from CB, towards OD2.",
     "CG OD1, CG OD2, CA CB CG"},
    {"ASN", "The amide hangs askew as the carboxylate of ASP does: OD1 is bent away from CB, towards ND2.",
     "CG OD1, CG ND2, CB CG ND2"},
    {"GLU", "The carboxylate of the side chain is no plane and hangs askew: OE2 stands nearly at a right "
            "angle to the chain, OE1 is bent away from it, and CD lies out of the plane of its "
            "neighbours. The chain opens too wide at CB.",
     "CD OE2, OE1 CD OE2, CB CG CD"},
    {"GLN", "The amide is bent as the carboxylate of GLU is.",
     "CD OE1, CD NE2, CB CG"},
    {"TRP", "The two rings do not lie in one plane: the molecule is folded a little along CD2 - CE2, the "
            "bond that they share.",
     "CG CD1, CD1 NE1, CE2 CZ2, CB CG CD1"},
    {"PHE", "The ring is opened at CG and squeezed at CD1. It is flat, and no regular hexagon.",
     "CB CG, CG CD2, CE1 CZ, CD1 CE1 CZ"},
    {"TYR", "The ring is that of PHE, with the same bends.",
     "CZ OH, CG CD2, CE1 CZ OH"},
    {"HIS", "The ring is not flat: it is twisted about CD2 - NE2. CG - CD2 is too long for the double "
            "bond that it is in both forms of histidine.",
     "CB CG, CG ND1, CA CB CG"},
    {"PRO", "The ring is drawn too narrow at N and at CB, the bond that closes it is too short, and its "
            "two hydrogens stand askew on N.",
     "CB CG, CG CD N"},
    {"MET", "CG - SD is far too short and the angle at the sulphur far too wide. The sulphur's other bond "
            "is right.",
     "SD CE, CB CG, CA CB CG"},
    {"THR", "The hydroxyl group leans away from CA, towards the methyl group.",
     "CB CG2, CA CB CG2"},
    {"VAL", "Nothing but what all have.",
     "CB CG2, CA CB CG1, CG1 CB CG2"},
    {"ILE", "CG2 is pressed against O. And its CB has the other hand, which no length and no angle tells.",
     "CB CG1, CA CB CG1, CA CB CG2"},
    {"LEU", "CD1 leans towards CB, and is pressed against the hydrogen H2.",
     "CB CG, CG CD1, CG CD2, CB CG CD2"},
    {"CYS", "Nothing but what all have. CB - SG, at the limit of a bond, is a little long.",
     "N CA C"},
    {"SER", "Nothing but what all have.",
     "CB OG, CA CB OG"},
    {"ARG", "The guanidinium group is no flat Y: NH2 stands out of the plane of the others. The chain opens "
            "too wide at NE and at CD.",
     "NE CZ, NE CZ NH1, CD NE"},
    {"LYS", "The end of the chain is drawn half stretched at CE.",
     "CD CE, CE NZ, CG CD CE"},
});

// clang-format on

constexpr double kGoodSpreads = 1.5;  // what is measured instead is at least this near

int DecimalsOf(BendOf kind) {
  return kind == BendOf::Length || kind == BendOf::Height || kind == BendOf::Contact ? 2 : 1;
}

std::string Joined(const std::vector<std::string>& names, std::string_view between) {
  std::string text;
  for (const std::string& name : names) {
    if (!text.empty()) text += between;
    text += name;
  }
  return text;
}

std::string RowWords(const Bend& bend) {
  return "| " + MeasureWords(bend) + " | " + DrawnWords(bend) + " | " + TrueWords(bend) + " |\n";
}

constexpr std::string_view kHead = R"(# The bends of the amino acids

Orvane builds the twenty amino acids from a table of lengths and angles. The table is given, and it is not
true everywhere. This page lists what is bent: each length and angle of each of the twenty has been measured
and held against the means of crystal structures
([Engh Huber 2001](sources.md#engh-huber-2001)). What is more than three standard deviations off, or more than
five degrees, stands here; what does not stand here is nearer than that. Atoms that should lie in a plane
with their neighbours are listed from 0.05 on, torsions of bonds that do not turn from five degrees on, and
two atoms that are not bonded when they overlap by more than 0.4
([Bondi 1964](sources.md#bondi-1964)). For angles at hydrogens the true value is that of a regular
tetrahedron. Lengths are in Angstrom, angles in degrees; behind the sign ± stands the standard deviation.
Torsions stand here as they are; the panel shows one of less than 90 by its supplement.

The page is written by the tool `orvane-stock-check --bends`, and a test compares it with the atoms. The
general amino acid has the bends that stand under the first heading; the dipeptide has its own, and
[the structures](structures.md) tell them. All other rows are built from published geometry and have no such
bends, but for a few hydrogens that are named there.

## In all of them

The side chain leans away from N, and the hydrogen of the alpha carbon towards it.

| Measure | Drawn | True |
| --- | --- | --- |
)";

std::string CommonRows(const std::vector<StockRow>& rows) {
  // By their atoms: the smallest and the largest true value of all bends that share them.
  std::map<std::string, std::vector<Bend>> shared;
  for (const StockRow& row : rows) {
    if (!row.IsAminoAcid() || row.Key == "Gen") continue;
    for (const Bend& bend : BendsOf(row)) {
      if (IsCommon(bend)) shared[bend.Atoms].push_back(bend);
    }
  }
  std::string text;
  for (const auto& [atoms, bends] : shared) {
    const auto [low, high] = std::minmax_element(
        bends.begin(), bends.end(), [](const Bend& a, const Bend& b) { return a.True < b.True; });
    std::string truth = Fixed(low->True, 1);
    if (low->True != high->True) {
      truth += " (" + low->Residue + ") to " + Fixed(high->True, 1) + " (" + high->Residue + ")";
    }
    const bool all = bends.size() == 20;
    text += "| " + MeasureWords(bends.front()) + (all ? "" : ", all but GLY") + " | " +
            DrawnWords(bends.front()) + " | " + truth + " |\n";
  }
  return text;
}

constexpr std::string_view kUnderCommon = R"(
The form is called a zwitterion, whose carboxylate shares its charge between two oxygens alike. It is drawn
with C - O $CO and C - O2 $CO2, as if one bond were nearly double and the other nearly single; both should be
near $TRUE. Bonds to hydrogen are drawn at 1.00, which is too short
([Allen Bruno 2010](sources.md#allen-bruno-2010)). *Measure instead:* N - CA $NCA, CA - C $CAC and
N - CA - C $NCAC are right in all of them.
)";

void Replace(std::string& text, std::string_view mark, const std::string& by) {
  text.replace(text.find(mark), mark.size(), by);
}

std::string UnderCommon(const StockRow& row) {
  const auto at = [&](const char* name) { return row.At(row.Find(name)); };
  std::string text(kUnderCommon);
  Replace(text, "$CO ", Fixed(Apart(at("C"), at("O")), 2) + " ");
  Replace(text, "$CO2", Fixed(Apart(at("C"), at("O2")), 2));
  for (const Published& published : Frames()) {
    if (published.Atoms == "C O") Replace(text, "$TRUE", Fixed(published.Mean, 2));
  }
  Replace(text, "$NCA,", Fixed(Apart(at("N"), at("CA")), 2) + ",");
  Replace(text, "$CAC ", Fixed(Apart(at("CA"), at("C")), 2) + " ");
  Replace(text, "$NCAC", Fixed(AngleAt(at("N"), at("CA"), at("C")), 1));
  return text;
}

std::string InsteadWords(const StockRow& row, std::string_view instead) {
  std::string text;
  for (std::size_t from = 0; from < instead.size();) {
    const std::size_t comma = std::min(instead.find(", ", from), instead.size());
    const std::string_view atoms = instead.substr(from, comma - from);
    from = comma + 2;
    for (const Bend& measure : MeasuresOf(row)) {
      if (measure.Atoms != atoms) continue;
      if (measure.Off() > kGoodSpreads) text += "(BENT) ";
      text += (text.empty() ? "" : ", ") + MeasureWords(measure) + " " + DrawnWords(measure);
    }
  }
  return text;
}

std::string Wrapped(const std::string& paragraph) {
  constexpr std::size_t kColumns = 110;
  std::string text, line;
  for (const std::string& word : NamesIn(paragraph)) {
    if (!line.empty() && line.size() + 1 + word.size() > kColumns) {
      text += line + "\n";
      line.clear();
    }
    line += (line.empty() ? "" : " ") + word;
  }
  return text + line + "\n";
}

}  // namespace

std::string MeasureWords(const Bend& bend) {
  std::vector<std::string> names = NamesIn(bend.Atoms);
  switch (bend.Kind) {
    case BendOf::Height: {
      const std::string centre = names.front();
      names.erase(names.begin());
      return centre + " from the plane of " + Joined(names, ", ");
    }
    case BendOf::Sum:
      return "the three angles at " + names.front() + " together";
    case BendOf::Twist:
      return Joined(names, " - ") + " (torsion)";
    case BendOf::Rings:
      return "between the planes of the two rings";
    case BendOf::Contact:
      return Joined(names, " to ") + " (not bonded)";
    default:
      return Joined(names, " - ");
  }
}

std::string DrawnWords(const Bend& bend) { return Fixed(bend.Measured, DecimalsOf(bend.Kind)); }

std::string TrueWords(const Bend& bend) {
  if (bend.Kind == BendOf::Contact) return Fixed(bend.True, 2) + " or more";
  if (bend.Kind == BendOf::Length) {
    return Fixed(bend.True, 2) + " ± " + Fixed(bend.Deviation, 2);
  }
  if (bend.Deviation > 0) return Fixed(bend.True, 1) + " ± " + Fixed(bend.Deviation, 1);
  return std::remainder(bend.True, 180) == 0 ? Fixed(bend.True, 0) : Fixed(bend.True, 1);
}

bool IsCommon(const Bend& bend) { return bend.Atoms == "N CA CB" || bend.Atoms == "N CA H4"; }

std::string BendsPage(const std::vector<StockRow>& rows) {
  std::string page(kHead);
  page += CommonRows(rows);
  for (const StockRow& row : rows) {
    if (row.Key == "ALA") page += UnderCommon(row);
  }
  for (const StockRow& row : rows) {
    for (const Advice& advice : kAdvice) {
      if (advice.Residue != row.Key) continue;
      page += "\n## " + row.Key + "\n\n" + Wrapped(std::string(advice.Words));
      std::string table;
      for (const Bend& bend : BendsOf(row)) {
        if (!IsCommon(bend)) table += RowWords(bend);
      }
      if (!table.empty()) page += "\n| Measure | Drawn | True |\n| --- | --- | --- |\n" + table;
      page += "\n" + Wrapped("*Measure instead:* " + InsteadWords(row, advice.Instead) + ".");
    }
  }
  return page;
}

}  // namespace orvane::stock_check
