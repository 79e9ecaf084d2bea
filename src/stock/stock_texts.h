// The constant molecule texts: packed atom records of 55 characters, the last without its closing
// blank except where noted. Written from tables by tools/stock_maker.
#pragma once

#include <string_view>

namespace orvane::stock {

// The frame of every amino acid: all ten atoms of it, and the five on which a residue is built.
extern const std::string_view TextGeneral;
extern const std::string_view TextFrame;
extern const std::string_view TextDipeptide;

// Regular chains. In Alfa and Beta one atom R stands for a whole side chain; Alfb is polyalanine
// with its hydrogens.
extern const std::string_view TextAlfa;
extern const std::string_view TextAlfb;
extern const std::string_view TextBeta;

// The pieces of the polyalanine strand, each with all its closing blanks. The text is the first
// piece and then the second one twice: its last residue is there twice, in one place.
extern const std::string_view TextBetbResidues1To4;  // 40 records
extern const std::string_view TextBetbResidue5;      // 10 records

// Pleated sheets, parallel and antiparallel.
extern const std::string_view TextPbs;
extern const std::string_view TextApbs;

extern const std::string_view TextPhosphate;
extern const std::string_view TextRibose;
extern const std::string_view TextDeoxyribose;

// A base alone, with its sugar, and with sugar and phosphate.
extern const std::string_view TextBaseA;
extern const std::string_view TextNucleosideA;
extern const std::string_view TextNucleotideA;
extern const std::string_view TextBaseC;
extern const std::string_view TextNucleosideC;
extern const std::string_view TextNucleotideC;
extern const std::string_view TextBaseG;
extern const std::string_view TextNucleosideG;
extern const std::string_view TextNucleotideG;
extern const std::string_view TextBaseT;
extern const std::string_view TextNucleosideT;
extern const std::string_view TextNucleotideT;

// The two strands of the double strand. Its text is the first and then the second, so the first has
// its closing blank.
extern const std::string_view TextS1Dna;
extern const std::string_view TextS2Dna;

}  // namespace orvane::stock
