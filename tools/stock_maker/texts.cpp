#include "stock_maker/texts.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "stock_maker/record.h"
#include "stock_maker/table.h"
#include "stock_maker/units.h"

namespace orvane::stock_maker {

namespace {

// The records of one text before they are written, and the picture to which it belongs.
struct Draft {
  std::string name;
  std::string picture;
  std::vector<AtomRecord> records;
};

// The pieces that another piece follows, and the doubled residue at the end of its text.
constexpr std::array<std::string_view, 3> kEndInBlank = {"TextBetbResidues1To4", "TextBetbResidue5",
                                                         "TextS1Dna"};

// "1-6 9-12" to 1, 2, 3, 4, 5, 6, 9, 10, 11, 12.
std::vector<int> Serials(const Row& row) {
  std::vector<int> serials;
  for (const std::string& range : Words(row, "serials")) {
    const char* end = range.data() + range.size();
    int first = 0;
    int last = 0;
    const auto dash = std::from_chars(range.data(), end, first);
    if (dash.ptr == end || *dash.ptr != '-' ||
        std::from_chars(dash.ptr + 1, end, last).ptr != end) {
      Refuse(row.place, "\"" + range + "\" is no range of serial numbers");
    }
    for (int serial = first; serial <= last; ++serial) serials.push_back(serial);
  }
  return serials;
}

// A nucleotide is named after its base, with a d before it if it is the base alone.
char BaseLetter(const std::string& residue) {
  const bool base = residue.size() == 1 || (residue.size() == 2 && residue.front() == 'd');
  return base ? residue.back() : ' ';
}

// The records of one row of texts.tsv, in the coordinates of the unit.
void AddRun(std::vector<AtomRecord>& records, const Units& units, const Row& row) {
  const std::vector<std::string> residues = Words(row, "residues");
  const std::vector<std::string> atoms = Words(row, "atoms");
  const std::vector<int> serials = Serials(row);
  if (serials.size() != residues.size() * atoms.size()) {
    Refuse(row.place, std::to_string(serials.size()) + " serial numbers for " +
                          std::to_string(residues.size() * atoms.size()) + " records");
  }
  const std::string& chain = Field(row, "chain");
  auto serial = serials.begin();
  int step = 0;
  for (const std::string& residue : residues) {
    for (const std::string& atom : atoms) {
      const std::size_t equals = atom.find('=');
      const std::string at = atom.substr(0, equals);
      const std::string name = equals == std::string::npos ? atom : atom.substr(equals + 1);
      records.push_back({*serial++, name, residue, chain == "-" ? ' ' : chain.front(),
                         Whole(row, "first") + step,
                         PlaceAtom(units, Field(row, "place"), Whole(row, "level") + step,
                                   BaseLetter(residue), at, row.place)});
    }
    ++step;
  }
}

// "x-90 y+20": one turn after the other.
Point TurnedBy(Point p, const Row& row) {
  for (const std::string& turn : Words(row, "turns")) {
    double degrees = 0;
    const char* start = turn.data() + (turn.size() > 1 && turn[1] == '+' ? 2 : 1);
    const char* end = turn.data() + turn.size();
    if (turn.find_first_of("xyz") != 0 || std::from_chars(start, end, degrees).ptr != end ||
        start == end) {
      Refuse(row.place, "\"" + turn + "\" is no turn");
    }
    p = Turned(p, turn.front(), degrees);
  }
  return p;
}

// Turns the texts of one picture and moves the centre of their common box to 0.
void Compose(std::vector<Draft>& drafts, const Row& picture) {
  Point low{1e9, 1e9, 1e9};
  Point high{-1e9, -1e9, -1e9};
  for (Draft& draft : drafts) {
    if (draft.picture != Field(picture, "picture")) continue;
    for (AtomRecord& record : draft.records) {
      const Point at = TurnedBy(record.at, picture);
      low = {std::min(low.x, at.x), std::min(low.y, at.y), std::min(low.z, at.z)};
      high = {std::max(high.x, at.x), std::max(high.y, at.y), std::max(high.z, at.z)};
      record.at = at;
    }
  }
  const Point centre = 0.5 * (low + high);
  for (Draft& draft : drafts) {
    if (draft.picture != Field(picture, "picture")) continue;
    for (AtomRecord& record : draft.records) record.at = record.at - centre;
  }
}

Draft& DraftOf(std::vector<Draft>& drafts, const std::string& name, const std::string& picture) {
  if (drafts.empty() || drafts.back().name != name) drafts.push_back({name, picture, {}});
  return drafts.back();
}

}  // namespace

std::vector<StockText> MakeTexts(const std::string& folder) {
  std::vector<Draft> drafts;
  Table table;
  ReadTableFile(table, folder, "fixed_texts.tsv");
  for (const Row& row : table.rows) {
    DraftOf(drafts, Field(row, "text"), "")
        .records.push_back({Whole(row, "serial"),
                            Field(row, "atom"),
                            Field(row, "residue"),
                            ' ',
                            Whole(row, "number"),
                            {Number(row, "x"), Number(row, "y"), Number(row, "z")}});
  }

  Units units;
  ReadUnits(units, folder);
  ReadTableFile(table, folder, "texts.tsv");
  for (const Row& row : table.rows) {
    AddRun(DraftOf(drafts, Field(row, "text"), Field(row, "picture")).records, units, row);
  }
  ReadTableFile(table, folder, "pictures.tsv");
  for (const Row& row : table.rows) Compose(drafts, row);
  for (const Draft& draft : drafts) {
    const bool composed = std::any_of(table.rows.begin(), table.rows.end(), [&](const Row& row) {
      return Field(row, "picture") == draft.picture;
    });
    if (!composed && !draft.picture.empty()) {
      Refuse("pictures.tsv", "no picture " + draft.picture + " for " + draft.name);
    }
  }

  std::vector<StockText> texts;
  for (const Draft& draft : drafts) {
    StockText text{draft.name, ""};
    for (const AtomRecord& record : draft.records) text.records += WriteRecord(record);
    if (std::find(kEndInBlank.begin(), kEndInBlank.end(), draft.name) == kEndInBlank.end()) {
      text.records.pop_back();
    }
    texts.push_back(std::move(text));
  }
  return texts;
}

}  // namespace orvane::stock_maker
