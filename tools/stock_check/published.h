// Published means of crystal structures, and how far single structures lie from them: one row for
// each length, angle or torsion. Angstrom and degrees.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::stock_check {

struct Published {
  std::string_view Unit;   // what it belongs to: "ARG", "sugar", "A"
  std::string_view Atoms;  // two names for a length, three for an angle, the corner in the middle
  double Mean;
  double Deviation;  // standard deviation; 0 if the source gives none
};

// The side chains of free amino acids: R. A. Engh and R. Huber (2001). HIS has its hydrogen on
// ND1, HIE on NE2.
std::span<const Published> SideChains();
// The frame that carries them: "GLY", "PRO", and "" for all others. Its carboxylate is that of
// aspartate, since a chain has one only at its end.
std::span<const Published> Frames();
// All of one amino acid: its frame and its side chain. HIS as HIS, or as HIE.
std::vector<Published> PublishedOf(std::string_view residue);

// "peptide": the same authors (1991), from which the chains are built.
std::span<const Published> Peptides();
// "sugar": A. Gelbin and others (1996), deoxyribose with C2'-endo. "phosphate": G. Parkinson and
// others (1996), in a chain. "ribose": A. Gelbin and others (1996), with C2'-endo. "acid": the
// phosphate of dihydrogen phosphates, 1.50 to 1.52 and 1.56 to 1.58 by M. Catti and others (1976).
// "end": M. Kowiel and others (2016), the phosphate of a single
// nucleotide.
std::span<const Published> Backbones();
// "A", "C", "G", "T": L. Clowney and others (1996).
std::span<const Published> Bases();

// Splits "CA CB" into its names.
std::vector<std::string> NamesIn(std::string_view atoms);

}  // namespace orvane::stock_check
