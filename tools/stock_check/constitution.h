// What is bonded to what in each row, and which hand each carbon has that can have one: by tables
// of chemistry, so that a row can be held against them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "stock_check/stock_row.h"

namespace orvane::stock_check {

// Bonds of one letter's base and of the deoxyribose that bears it, as "C1*-C2*", each pair in the
// order of the alphabet.
std::vector<std::string> BondsOfBase(char base);
std::vector<std::string> BondsOfSugar(char base);
bool IsPurine(char base);
// The letter of a base or of a nucleotide by what it is called: 'A' for "dA" and for "A".
char BaseOf(const StockRow& row, int residue);

// The name of each amino acid as its row's key has it; for the chains the name of their pieces.
bool IsPeptideChain(const StockRow& row);  // Alfa, Alfb, Beta, Betb, PBS, APBS
bool HasNucleotides(const StockRow& row);  // nucleosides, nucleotides, strands

// The row without atoms that stand exactly on an earlier one of the same name, as the last residue
// of Betb does.
StockRow WithoutCopies(const StockRow& row);

// The bonds that chemistry asks for, as "3 C-4 N", sorted.
std::vector<std::string> ExpectedBonds(const StockRow& row);
// Entries of the program's list that are bonds, by the same names, sorted; and those that are none:
// two hydrogens, or a hydrogen that is farther than any bond of it.
std::vector<std::string> BondsIn(const StockRow& row);
std::vector<std::string> ContactsIn(const StockRow& row);
bool IsContact(const StockRow& row, const AtomPair& pair);

// A carbon with four different neighbours: three of them by their rank in the rule of Cahn, Ingold
// and Prelog; the fourth is a hydrogen, there or not.
struct Stereocentre {
  int Residue = 0;
  std::string Centre;
  std::string First, Second, Third;
  char Expected = ' ';  // 'R' or 'S'
};
std::vector<Stereocentre> StereocentresOf(const StockRow& row);
char HandFound(const StockRow& row, const Stereocentre& centre);

}  // namespace orvane::stock_check
