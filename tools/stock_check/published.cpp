#include "stock_check/published.h"

#include <array>
#include <sstream>

namespace orvane::stock_check {

namespace {

// clang-format off

// R. A. Engh and R. Huber (1991). A name with + belongs to the next residue, one with - to the one
// before. The angles of 110.0, 115.0 and 123.0 are chosen within the spread; docs/structures.md
// says why.
constexpr auto kPeptides = std::to_array<Published>({
    {"peptide", "N CA",     1.458, 0.019},
    {"peptide", "CA C",     1.525, 0.021},
    {"peptide", "C O",      1.231, 0.020},
    {"peptide", "C +N",     1.329, 0.014},
    {"peptide", "CA CB",    1.521, 0.033},
    {"peptide", "CA R",     1.530, 0.020},
    {"peptide", "N CA C",   111.2, 2.8},
    {"peptide", "CA C +N",  116.2, 2.0},
    {"peptide", "CA C O",   120.8, 1.7},
    {"peptide", "O C +N",   123.0, 1.6},
    {"peptide", "C +N +CA", 121.7, 1.8},
    {"peptide", "N CA CB",  110.4, 1.5},
    {"peptide", "C CA CB",  110.5, 1.5},
    {"peptide", "N CA R",   110.5, 1.7},
    {"peptide", "C CA R",   110.1, 1.9},
});

// N stands for N9 of a purine and N1 of a pyrimidine. The angles of the sugar and of the phosphate
// are means. Where we know no deviation we use 1.5, which is common in crystals.
constexpr auto kBackbones = std::to_array<Published>({
    {"sugar", "O5* C5*",       1.440, 0.016},
    {"sugar", "C5* C4*",       1.511, 0.008},
    {"sugar", "C4* O4*",       1.446, 0.011},
    {"sugar", "O4* C1*",       1.420, 0.013},
    {"sugar", "C4* C3*",       1.528, 0.010},
    {"sugar", "C3* C2*",       1.518, 0.010},
    {"sugar", "C2* C1*",       1.521, 0.014},
    {"sugar", "C3* O3*",       1.433, 0.019},
    {"sugar", "C1* N",         1.474, 0.020},
    {"sugar", "O5* C5* C4*",   109.4, 0},
    {"sugar", "C5* C4* C3*",   114.7, 0},
    {"sugar", "C5* C4* O4*",   109.4, 0},
    {"sugar", "C3* C4* O4*",   105.6, 0},
    {"sugar", "C4* O4* C1*",   109.7, 0},
    {"sugar", "O4* C1* C2*",   106.1, 0},
    {"sugar", "C1* C2* C3*",   102.7, 0},
    {"sugar", "C2* C3* C4*",   103.2, 0},
    {"sugar", "C2* C3* O3*",   110.6, 0},
    {"sugar", "C4* C3* O3*",   110.3, 0},
    {"sugar", "N C1* O4*",     107.8, 0},
    {"sugar", "N C1* C2*",     114.2, 0},
    {"phosphate", "P O1P",         1.485, 0.017},
    {"phosphate", "P O2P",         1.485, 0.017},
    {"phosphate", "P O5*",         1.593, 0.010},
    {"phosphate", "-O3* P",        1.607, 0.012},
    {"phosphate", "O1P P O2P",     119.6, 0},
    {"phosphate", "-O3* P O5*",    104.0, 0},
    {"phosphate", "P O5* C5*",     120.9, 0},
    {"phosphate", "-C3* -O3* P",   119.7, 0},
    {"ribose", "C1 C2",       1.526, 0.008},
    {"ribose", "C2 C3",       1.525, 0.011},
    {"ribose", "C3 C4",       1.527, 0.011},
    {"ribose", "C4 O1",       1.454, 0.010},
    {"ribose", "O1 C1",       1.415, 0.012},
    {"ribose", "C3 O3",       1.427, 0.012},
    {"ribose", "C4 C5",       1.509, 0.012},
    {"ribose", "C5 O4",       1.424, 0.016},
    {"ribose", "C2 O2",       1.412, 0.013},
    {"ribose", "O1 C1 C2",    105.8, 0},
    {"ribose", "C1 C2 C3",    101.5, 0},
    {"ribose", "C2 C3 C4",    102.6, 0},
    {"ribose", "C3 C4 O1",    106.1, 0},
    {"ribose", "C4 O1 C1",    109.7, 0},
    {"ribose", "C1 C2 O2",    111.8, 0},
    {"ribose", "C3 C2 O2",    114.6, 0},
    {"ribose", "C2 C3 O3",    109.5, 0},
    {"ribose", "C4 C3 O3",    109.4, 0},
    {"ribose", "C3 C4 C5",    115.2, 0},
    {"ribose", "O1 C4 C5",    109.1, 0},
    {"ribose", "C4 C5 O4",    111.7, 0},
    {"acid", "P OP1",         1.51, 0.01},
    {"acid", "P OP2",         1.51, 0.01},
    {"acid", "P OP3",         1.57, 0.01},
    {"acid", "P OP4",         1.57, 0.01},
    {"acid", "OP1 P OP2",     115,  0},
    {"acid", "OP3 P OP4",     106,  0},
    {"end", "P O1P",         1.514, 0.020},
    {"end", "P O2P",         1.514, 0.020},
    {"end", "P O3P",         1.514, 0.020},
    {"end", "P O5*",         1.622, 0.020},
    {"end", "P O5* C5*",     119.0, 0},
    {"end", "O5* P O1P",     102.8, 0},
    {"end", "O5* P O2P",     107.4, 0},
    {"end", "O5* P O3P",     107.4, 0},
});

// L. Clowney and others (1996).
constexpr auto kBases = std::to_array<Published>({
    {"C", "N1 C2",     1.397, 0.010},
    {"C", "C2 N3",     1.353, 0.008},
    {"C", "N3 C4",     1.335, 0.007},
    {"C", "C4 C5",     1.425, 0.008},
    {"C", "C5 C6",     1.339, 0.008},
    {"C", "C6 N1",     1.367, 0.006},
    {"C", "C2 O2",     1.240, 0.009},
    {"C", "C4 N4",     1.335, 0.009},
    {"C", "C6 N1 C2",  120.3, 0.4},
    {"C", "N1 C2 N3",  119.2, 0.7},
    {"C", "C2 N3 C4",  119.9, 0.5},
    {"C", "N3 C4 C5",  121.9, 0.4},
    {"C", "C4 C5 C6",  117.4, 0.5},
    {"C", "C5 C6 N1",  121.0, 0.5},
    {"C", "N1 C2 O2",  118.9, 0.6},
    {"C", "N3 C2 O2",  121.9, 0.7},
    {"C", "N3 C4 N4",  118.0, 0.7},
    {"C", "C5 C4 N4",  120.2, 0.7},
    {"T", "N1 C2",     1.376, 0.008},
    {"T", "C2 N3",     1.373, 0.008},
    {"T", "N3 C4",     1.382, 0.008},
    {"T", "C4 C5",     1.445, 0.009},
    {"T", "C5 C6",     1.339, 0.007},
    {"T", "C6 N1",     1.378, 0.007},
    {"T", "C2 O2",     1.220, 0.008},
    {"T", "C4 O4",     1.228, 0.009},
    {"T", "C5 C5M",    1.496, 0.006},
    {"T", "C6 N1 C2",  121.3, 0.5},
    {"T", "N1 C2 N3",  114.6, 0.6},
    {"T", "C2 N3 C4",  127.2, 0.6},
    {"T", "N3 C4 C5",  115.2, 0.6},
    {"T", "C4 C5 C6",  118.0, 0.6},
    {"T", "C5 C6 N1",  123.7, 0.6},
    {"T", "N1 C2 O2",  123.1, 0.8},
    {"T", "N3 C2 O2",  122.3, 0.6},
    {"T", "N3 C4 O4",  119.9, 0.6},
    {"T", "C5 C4 O4",  124.9, 0.7},
    {"T", "C4 C5 C5M", 119.0, 0.6},
    {"T", "C6 C5 C5M", 122.9, 0.6},
    {"A", "N1 C2",     1.339, 0.009},
    {"A", "C2 N3",     1.331, 0.009},
    {"A", "N3 C4",     1.344, 0.006},
    {"A", "C4 C5",     1.383, 0.007},
    {"A", "C5 C6",     1.406, 0.009},
    {"A", "C6 N1",     1.351, 0.007},
    {"A", "C5 N7",     1.388, 0.006},
    {"A", "N7 C8",     1.311, 0.007},
    {"A", "C8 N9",     1.373, 0.008},
    {"A", "N9 C4",     1.374, 0.006},
    {"A", "C6 N6",     1.335, 0.008},
    {"A", "C6 N1 C2",  118.6, 0.6},
    {"A", "N1 C2 N3",  129.3, 0.5},
    {"A", "C2 N3 C4",  110.6, 0.5},
    {"A", "N3 C4 C5",  126.8, 0.7},
    {"A", "C4 C5 C6",  117.0, 0.5},
    {"A", "C5 C6 N1",  117.7, 0.5},
    {"A", "C4 C5 N7",  110.7, 0.5},
    {"A", "C5 N7 C8",  103.9, 0.5},
    {"A", "N7 C8 N9",  113.8, 0.5},
    {"A", "C8 N9 C4",  105.8, 0.4},
    {"A", "N9 C4 C5",  105.8, 0.4},
    {"A", "N3 C4 N9",  127.4, 0.8},
    {"A", "C6 C5 N7",  132.3, 0.7},
    {"A", "N1 C6 N6",  118.6, 0.6},
    {"A", "C5 C6 N6",  123.7, 0.8},
    {"G", "N1 C2",     1.373, 0.008},
    {"G", "C2 N3",     1.323, 0.008},
    {"G", "N3 C4",     1.350, 0.007},
    {"G", "C4 C5",     1.379, 0.007},
    {"G", "C5 C6",     1.419, 0.010},
    {"G", "C6 N1",     1.391, 0.007},
    {"G", "C5 N7",     1.388, 0.006},
    {"G", "N7 C8",     1.305, 0.006},
    {"G", "C8 N9",     1.374, 0.007},
    {"G", "N9 C4",     1.375, 0.008},
    {"G", "C2 N2",     1.341, 0.010},
    {"G", "C6 O6",     1.237, 0.009},
    {"G", "C6 N1 C2",  125.1, 0.6},
    {"G", "N1 C2 N3",  123.9, 0.6},
    {"G", "C2 N3 C4",  111.9, 0.5},
    {"G", "N3 C4 C5",  128.6, 0.5},
    {"G", "C4 C5 C6",  118.8, 0.6},
    {"G", "C5 C6 N1",  111.5, 0.6},
    {"G", "C4 C5 N7",  110.8, 0.4},
    {"G", "C5 N7 C8",  104.3, 0.5},
    {"G", "N7 C8 N9",  113.1, 0.5},
    {"G", "C8 N9 C4",  106.4, 0.4},
    {"G", "N9 C4 C5",  105.4, 0.4},
    {"G", "N3 C4 N9",  126.0, 0.6},
    {"G", "C6 C5 N7",  130.4, 0.6},
    {"G", "N1 C2 N2",  116.2, 0.9},
    {"G", "N3 C2 N2",  119.9, 0.7},
    {"G", "N1 C6 O6",  119.9, 0.6},
    {"G", "C5 C6 O6",  128.6, 0.6},
});

// clang-format on

}  // namespace

std::span<const Published> Peptides() { return kPeptides; }

std::span<const Published> Backbones() { return kBackbones; }

std::span<const Published> Bases() { return kBases; }

std::vector<std::string> NamesIn(std::string_view atoms) {
  std::istringstream stream{std::string(atoms)};
  std::vector<std::string> names;
  for (std::string name; stream >> name;) names.push_back(name);
  return names;
}

}  // namespace orvane::stock_check
