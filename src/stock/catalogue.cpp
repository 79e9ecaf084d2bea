#include "stock/catalogue.h"

#include "stock/catalogue_tables.h"

namespace orvane {
namespace {

using namespace catalogue;

template <std::size_t kCount>
std::vector<std::string> Copied(const std::array<std::string_view, kCount>& rows) {
  return {rows.begin(), rows.end()};
}

}  // namespace

void AssembleStockTexts(Catalogue& fields) {
  fields.TextAlfa = stock::TextAlfa;
  fields.TextAlfb = stock::TextAlfb;
  fields.TextBeta = stock::TextBeta;
  // The last residue is there twice, in one place: the text is then as long as the helix's.
  fields.TextBetb = stock::TextBetbResidues1To4;
  fields.TextBetb += stock::TextBetbResidue5;
  fields.TextBetb += stock::TextBetbResidue5;
  fields.TextPbs = stock::TextPbs;
  fields.TextApbs = stock::TextApbs;
  fields.TextNucleotideA = stock::TextNucleotideA;
  fields.TextNucleotideC = stock::TextNucleotideC;
  fields.TextNucleosideG = stock::TextNucleosideG;
  fields.TextNucleotideG = stock::TextNucleotideG;
  fields.TextNucleotideT = stock::TextNucleotideT;
  fields.TextRibose = stock::TextRibose;
  fields.TextS1Dna = stock::TextS1Dna;
  fields.TextS2Dna = stock::TextS2Dna;
  fields.TextDna3 = fields.TextS1Dna + fields.TextS2Dna;
  // An older number than the window's own title, on purpose.
  fields.TitlePrefix = "Orvane (OVN) v2.0: ";
}

void FillAminoList(Orvane_Desk& desk) { desk.main.AA_Lst.Rows = Copied(kAminoRows); }
void FillProteinList(Orvane_Desk& desk) { desk.main.Pro_Lst.Rows = Copied(kProteinRows); }
void FillNucleotideList(Orvane_Desk& desk) { desk.main.Nuc_Lst.Rows = Copied(kNucleotideRows); }
void FillDnaList(Orvane_Desk& desk) { desk.main.DNA_Lst.Rows = Copied(kDnaRows); }

}  // namespace orvane
