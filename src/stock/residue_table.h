// How each amino acid is built on the frame N, CA, C, O: one row for each atom, in internal
// coordinates.
#pragma once

#include <array>
#include <string_view>

namespace orvane {

// The new atom stands `Length` away from BondedTo. `Angle` is measured from the axis AngleRef -
// BondedTo and `Torsion` about that axis from the side of TorsionRef, both by the rule of
// PlaceAtom, which knows no quadrants: an angle above 180 or below 0 puts the atom on the other
// side of the axis. So the numbers hold only with that rule.
struct Placement {
  std::string_view Residue;  // the one it belongs to; in the common rows the one left out
  std::string_view Atom, BondedTo, AngleRef, TorsionRef;
  double Torsion, Angle;  // degrees
  double Length;          // Angstrom
};

// clang-format off

// Atoms of every residue but the one named, in this order. The ring of proline closes on N, which
// keeps two hydrogens; glycine has no CB.
inline constexpr auto kCommonPlacements = std::to_array<Placement>({
// all but  atom   bonded angle  torsion
    {"PRO", "H2",  "N",   "CA",  "C",   -179.98,  289,     1},
    {"",    "H1",  "N",   "CA",  "C",    300,     289,     1},
    {"",    "H3",  "N",   "CA",  "C",     60,     289,     1},
    {"",    "H4",  "CA",  "C",   "O",    180,      71,     1},
    {"GLY", "CB",  "CA",  "C",   "O",    295.04,   69.98,  1.5},
});

// Atoms of one residue each, in order of placement. The second atom of a branch or ring may be
// placed from its sibling across it, at a distance that is no bond length: CG2 of THR, VAL and ILE,
// CD2 of TYR, PHE, TRP and HIS. Along the long chains the references stay at CB and CA while the
// bonded atom moves on.
inline constexpr auto kResiduePlacements = std::to_array<Placement>({
// residue  atom   bonded angle  torsion torsion  angle    length
    {"GLY", "H5",  "CA",  "C",   "O",    315,      69.98,  1},
    {"ALA", "H5",  "CB",  "CA",  "N",    180,     109,     1},
    {"ALA", "H6",  "CB",  "CA",  "N",     60,     109,     1},
    {"ALA", "H7",  "CB",  "CA",  "N",    315,     110.02,  1},
    {"SER", "OG",  "CB",  "CA",  "N",     53.71,  108.056, 1.422},
    {"CYS", "SG",  "CB",  "CA",  "N",     55.108, 112.323, 1.847},
    {"THR", "OG1", "CB",  "CA",  "N",     62.344, 115.441, 1.46},
    {"THR", "CG2", "OG1", "CB",  "CA", -123.375,  -38.648, 2.381},
    {"VAL", "CG1", "CB",  "CA",  "N",  -176.403,  110.798, 1.552},
    {"VAL", "CG2", "CG1", "CB",  "CA",  128.252,  -34.753, 2.512},
    {"LEU", "CG",  "CB",  "CA",  "N",   -82.085,  116.432, 1.537},
    {"LEU", "CD1", "CG",  "CB",  "CA",  -57.045,  284.642, 1.521},
    {"LEU", "CD2", "CG",  "CB",  "CA",   66.007,  290.986, 1.505},
    {"ILE", "CG1", "CB",  "CA",  "N",   -52.521,  111.236, 1.552},
    {"ILE", "CG2", "CG1", "CB",  "CA", -124.827,  215.139, 2.552},
    {"ILE", "CD1", "CG1", "CB",  "CA",  335.482,   71.076, 1.561},
    {"MET", "CG",  "CB",  "CA",  "N",   -84.696,  112.037, 1.497},
    {"MET", "SD",  "CG",  "CB",  "CA",  131.176,  287.744, 1.497},
    {"MET", "CE",  "SD",  "CB",  "CA",   80.898,  281.031, 1.8},
    {"PRO", "CG",  "CB",  "CA",  "N",   -13.991,   94.27,  1.5},
    {"PRO", "CD",  "CG",  "CB",  "CA",   11.803,  290.632, 1.559},
    {"ASP", "CG",  "CB",  "CA",  "N",   -84.696,  112.037, 1.497},
    {"ASP", "OD1", "CG",  "CB",  "CA",  -60.859,  307.066, 1.236},
    {"ASP", "OD2", "CG",  "CB",  "CA",  115.216,  296.334, 1.258},
    {"ASN", "CG",  "CB",  "CA",  "N",   -84.696,  112.037, 1.497},
    {"ASN", "OD1", "CG",  "CB",  "CA",  -60.859,  307.066, 1.209},
    {"ASN", "ND2", "CG",  "CB",  "CA",  115.216,  296.334, 1.305},
    {"GLU", "CG",  "CB",  "CA",  "N",  -161.117,  121.525, 1.535},
    {"GLU", "CD",  "CG",  "CB",  "CA",  -64.605,  116.308, 1.526},
    {"GLU", "OE1", "CD",  "CB",  "CA",  -32.503,  300.987, 1.228},
    {"GLU", "OE2", "CD",  "CB",  "CA",  145.228,  294.453, 1.259},
    {"GLN", "CG",  "CB",  "CA",  "N",  -161.117,  121.525, 1.535},
    {"GLN", "CD",  "CG",  "CB",  "CA",  -64.605,  116.308, 1.526},
    {"GLN", "OE1", "CD",  "CB",  "CA",  -32.503,  300.987, 1.228},
    {"GLN", "NE2", "CD",  "CB",  "CA",  145.228,  294.453, 1.311},
    {"LYS", "CG",  "CB",  "CA",  "N",   -71.117,  112.525, 1.552},
    {"LYS", "CD",  "CG",  "CB",  "CA", -154.807,  287.196, 1.534},
    {"LYS", "CE",  "CD",  "CB",  "CA", -132.045,  112.934, 1.513},
    {"LYS", "NZ",  "CE",  "CB",  "CA",   86.984,  107.771, 1.516},
    {"ARG", "CG",  "CB",  "CA",  "N",   -71.117,  112.525, 1.552},
    {"ARG", "CD",  "CG",  "CB",  "CA", -154.807,  287.196, 1.534},
    {"ARG", "NE",  "CD",  "CB",  "CA", -154.677,  110.184, 1.473},
    {"ARG", "CZ",  "NE",  "CB",  "CA",  -73.756,  124.064, 1.345},
    {"ARG", "NH1", "CZ",  "NE",  "CD",    3.532,  300.6,   1.351},
    {"ARG", "NH2", "CZ",  "NE",  "CD", -127.184,  292.231, 1.36},
    {"TYR", "CG",  "CB",  "CA",  "N",  -165.913,  112.525, 1.509},
    {"TYR", "CD1", "CG",  "CB",  "CA",   82.983,  117.566, 1.407},
    {"TYR", "CD2", "CD1", "CG",  "CB",  179.87,    27.976, 2.448},
    {"TYR", "CE1", "CD1", "CG",  "CB", -179.585,  116.391, 1.394},
    {"TYR", "CZ",  "CE1", "CD1", "CG",    0.033,  120.656, 1.385},
    {"TYR", "CE2", "CZ",  "CE1", "CD1",  -1.838,   60.431, 1.388},
    {"TYR", "OH",  "CZ",  "CE1", "CD1", 178.205,   60.041, 1.378},
    {"PHE", "CG",  "CB",  "CA",  "N",  -165.913,  112.525, 1.509},
    {"PHE", "CD1", "CG",  "CB",  "CA",   82.983,  117.566, 1.407},
    {"PHE", "CD2", "CD1", "CG",  "CB",  179.87,    27.976, 2.448},
    {"PHE", "CE1", "CD1", "CG",  "CB", -179.585,  116.391, 1.394},
    {"PHE", "CZ",  "CE1", "CD1", "CG",    0.033,  120.656, 1.385},
    {"PHE", "CE2", "CZ",  "CE1", "CD1",  -1.838,   60.431, 1.388},
    {"TRP", "CG",  "CB",  "CA",  "N",   172.024,  113.303, 1.494},
    {"TRP", "CD1", "CG",  "CB",  "CA", -104.03,   126.191, 1.372},
    {"TRP", "NE1", "CD1", "CG",  "CB",  177.261,   67.334, 1.379},
    {"TRP", "CD2", "CD1", "CG",  "CB", -177.682,  141.719, 2.233},
    {"TRP", "CE2", "NE1", "CD1", "CG",    1.912,  105.699, 1.394},
    {"TRP", "CZ2", "CE2", "NE1", "CD1", 174.013,  128.26,  1.396},
    {"TRP", "CH2", "CZ2", "CE2", "NE1",   0.745,  117.291, 1.415},
    {"TRP", "CZ3", "CH2", "CZ2", "CE2",   0.989,  120.363, 1.406},
    {"TRP", "CE3", "CZ3", "CH2", "CZ2",   0.361,   57.899, 1.393},
    {"HIS", "CG",  "CB",  "CA",  "N",   172.024,  112.525, 1.5},
    {"HIS", "ND1", "CG",  "CB",  "CA", -104.03,   126.191, 1.372},
    {"HIS", "CE1", "ND1", "CG",  "CB",  177.261,   67.334, 1.379},
    {"HIS", "CD2", "ND1", "CG",  "CB", -177.682,  141.719, 2.233},
    {"HIS", "NE2", "CE1", "ND1", "CG",    0.912,  105.699, 1.394},
});

// clang-format on

}  // namespace orvane
