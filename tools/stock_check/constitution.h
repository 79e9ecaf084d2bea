// What is bonded to what in each row, and which hand each carbon has that can have one: tables of
// chemistry with which a row can be compared.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "stock_check/stock_row.h"

namespace orvane::stock_check {

// The bonds of one letter's base and of the deoxyribose that carries it, as "C1*-C2*", each pair in
// alphabetical order.
std::vector<std::string> BondsOfBase(char base);
std::vector<std::string> BondsOfSugar(char base);
bool IsPurine(char base);
// The letter of a base or of a nucleotide from its name: 'A' for "dA" and for "A".
char BaseOf(const StockRow& row, int residue);

// The name of each amino acid as in its row's key; for the chains the name of their pieces.
bool IsPeptideChain(const StockRow& row);  // Alfa, Alfb, Beta, Betb, PBS, APBS
bool HasNucleotides(const StockRow& row);  // nucleosides, nucleotides, strands

// The row without atoms that are exactly where an earlier one of the same name is, as in the last
// residue of Betb.
StockRow WithoutCopies(const StockRow& row);

// The bonds that chemistry requires, as "3 C-4 N", sorted.
std::vector<std::string> ExpectedBonds(const StockRow& row);
// Entries of the program's list that are bonds, by the same names, sorted; and those that are not:
// two hydrogens, or a hydrogen that is farther away than any bond of hydrogen is long.
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
