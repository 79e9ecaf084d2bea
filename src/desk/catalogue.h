// The stock texts that are assembled at start, and the keys of the rows last chosen.
#pragma once

#include <string>

namespace orvane {

struct Catalogue {
  // Each is compared as a whole with MolText to recognise a structure.
  std::string TextAlfa, TextAlfb, TextBeta, TextBetb, TextPbs, TextApbs;
  std::string TextNucleotideA, TextNucleotideC, TextNucleosideG, TextNucleotideG, TextNucleotideT;
  std::string TextRibose, TextS1Dna, TextS2Dna, TextDna3;

  std::string AminoKey, ProKey, NucKey, DnaKey;  // as they stand in the row
  std::string TitlePrefix;                       // in front of the structure's name in the title
};

}  // namespace orvane
