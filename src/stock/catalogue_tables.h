// The rows of the four lists, the text of each key, and what may be drawn of it.
#pragma once

#include <array>
#include <string_view>

#include "desk/catalogue.h"
#include "stock/stock_texts.h"

namespace orvane::catalogue {

// A row begins with its key; the rest, from a column that depends on the list, goes into the title.
// clang-format off
inline constexpr auto kAminoRows = std::to_array<std::string_view>({
    "Gen General Amino Acid Conformation",
    "GLY GLYCINE (GLY G)",
    "ALA ALANINE (ALA A)",
    "ASP ASPARTIC (ASP D)",
    "ASN ASPARAGINE (ASN N)",
    "GLU GLUTAMIC (GLU E)",
    "GLN GLUTAMINE (GLN Q)",
    "TRP TRIPTOPHANE (TRP W)",
    "PHE PHENYLALANINE (PHE F)",
    "TYR TYROSINE (TYR Y)",
    "HIS HISTIDINE (HIS H)",
    "PRO PROLINE (PRO P)",
    "MET METHIONINE (MET M)",
    "THR THREONINE (THR T)",
    "VAL VALINE (VAL V)",
    "ILE ISOLEUCINE (ILE I)",
    "LEU LEUCINE (LEU L)",
    "CYS CYSTEINE (CYS C)",
    "SER SERINE (SER S)",
    "ARG ARGENINE (ARG R)",
    "LYS LYSINE (LYS K)",
});

inline constexpr auto kProteinRows = std::to_array<std::string_view>({
    "PEP Dipeptide",
    "Alfa Alpha helix structure (polypeptide)",
    "Alfb Alpha helix structure (polyalanine)",
    "Beta Beta strand structure (polypeptide)",
    "Betb Beta strand structure (polyalanine)",
    "PBS Parallel Beta Sheet structure",
    "APBS Anti-Parallel Beta Sheet structure",
});

inline constexpr auto kNucleotideRows = std::to_array<std::string_view>({
    "PHS Phosphate",
    "RIB Ribose",
    "DRB 2-deoxyRibose",
    "dA  Adenine (dA)",
    "As  DeoxyAdenosine (Nucleoside A)",
    "A   DeoxyAdenosine (Nucleotide A)",
    "dC  Cytosine (dC)",
    "Cs  DeoxyCytidine (Nucleoside C)",
    "C   DeoxyCytidine (Nucleotide C)",
    "dT  Thymine (dT)",
    "Ts  DeoxyThymidine (Nucleoside T)",
    "T   DeoxyThymidine (Nucleotide T)",
    "dG  Guanine (dG)",
    "Gs  DeoxyGuanosine (Nucleoside G)",
    "G   DeoxyGuanosine (Nucleotide G)",
});

inline constexpr auto kDnaRows = std::to_array<std::string_view>({
    "S1DNA Single stranded DNA",
    "S2DNA Single stranded DNA",
    "DNA3 Double stranded DNA",
});

// What a selection does to a menu entry; AsWas leaves it as the last selection left it.
enum class Entry { AsWas, No, Yes };

struct EntryStates {
  Entry D_Ca = Entry::AsWas, M_Rbn = Entry::AsWas, Ppt = Entry::AsWas, OPB = Entry::AsWas,
        RCDP = Entry::AsWas;
};

using enum Entry;
//                                                    D_Ca M_Rbn  Ppt    OPB    RCDP
inline constexpr EntryStates kNoEntries           = {No,  No,    No,    No,    No   };
inline constexpr EntryStates kBeforeAProteinKey   = {Yes, Yes,   Yes,   AsWas, AsWas};
inline constexpr EntryStates kDipeptideEntries    = {No,  No,    Yes,   AsWas, No   };
inline constexpr EntryStates kBackboneEntries     = {Yes, Yes,   No,    AsWas, Yes  };  // N, CA, C, O, R
inline constexpr EntryStates kPolyalanineEntries  = {No,  No,    Yes,   Yes,   No   };
inline constexpr EntryStates kNoChange            = {};

// A key in capitals, its text, which is either a constant or a field assembled at start, and what
// the key itself changes.
struct StockRow {
  std::string_view Key;
  const std::string_view* Constant;
  std::string Catalogue::* Assembled;
  EntryStates Entries = kNoChange;
  int ChainPlanes = 0;
};

inline constexpr auto kAminoStock = std::to_array<StockRow>({
    {"GEN",   &stock::TextGeneral,     nullptr},
});

inline constexpr auto kProteinStock = std::to_array<StockRow>({
    {"PEP ",  &stock::TextDipeptide,   nullptr,                     kDipeptideEntries},
    {"ALFA",  nullptr,                 &Catalogue::TextAlfa,        kBackboneEntries},
    {"ALFB",  nullptr,                 &Catalogue::TextAlfb,        kPolyalanineEntries, 1},
    {"BETA",  nullptr,                 &Catalogue::TextBeta,        kBackboneEntries},
    {"BETB",  nullptr,                 &Catalogue::TextBetb,        kPolyalanineEntries, 1},
    {"PBS ",  nullptr,                 &Catalogue::TextPbs,         kBackboneEntries},
    {"APBS",  nullptr,                 &Catalogue::TextApbs,        kBackboneEntries},
});

inline constexpr auto kNucleotideStock = std::to_array<StockRow>({
    {"PH",    &stock::TextPhosphate,   nullptr},
    {"RI",    nullptr,                 &Catalogue::TextRibose},
    {"DR",    &stock::TextDeoxyribose, nullptr},
    {"DA",    &stock::TextBaseA,       nullptr},
    {"AS",    &stock::TextNucleosideA, nullptr},
    {"A ",    nullptr,                 &Catalogue::TextNucleotideA},
    {"DC",    &stock::TextBaseC,       nullptr},
    {"CS",    &stock::TextNucleosideC, nullptr},
    {"C ",    nullptr,                 &Catalogue::TextNucleotideC},
    {"DT",    &stock::TextBaseT,       nullptr},
    {"TS",    &stock::TextNucleosideT, nullptr},
    {"T ",    nullptr,                 &Catalogue::TextNucleotideT},
    {"DG",    &stock::TextBaseG,       nullptr},
    {"GS",    nullptr,                 &Catalogue::TextNucleosideG},
    {"G ",    nullptr,                 &Catalogue::TextNucleotideG},
});

inline constexpr auto kDnaStock = std::to_array<StockRow>({
    {"S1DNA", nullptr,                 &Catalogue::TextS1Dna},
    {"S2DNA", nullptr,                 &Catalogue::TextS2Dna},
    {"DNA3 ", nullptr,                 &Catalogue::TextDna3},
});

// Built on TextFrame, in the order in which they are compared.
inline constexpr auto kGeneratedKeys = std::to_array<std::string_view>({
    "GLY", "ALA", "VAL", "ILE", "LEU", "ASP", "ASN", "GLU", "GLN", "ARG",
    "LYS", "TRP", "CYS", "THR", "MET", "SER", "HIS", "PRO", "TYR", "PHE",
});
// clang-format on

}  // namespace orvane::catalogue
