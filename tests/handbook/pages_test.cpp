// The pages for students and teachers: complete, linked, and with the pictures that their scripts
// make.
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "commands/key_sheet.h"
#include "controls/kinds.h"
#include "handbook/student.h"
#include "house/source_tree.h"
#include "narration/hover_words.h"
#include "replay/played.h"
#include "windows/main_window_table.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

const fs::path kDocs = fs::path(ORVANE_SOURCE_DIR) / "docs";
constexpr std::string_view kDesk = "docs/handbook/desk.md";

std::string Collapsed(std::string_view text) {
  std::string line;
  for (const std::string& word : WordsOf(text)) {
    if (!line.empty()) line += ' ';
    line += word;
  }
  return line;
}

// The caption as on the screen: without the mark of the letter that opens it.
std::string OnScreen(std::string_view caption) {
  std::string text = Collapsed(caption);
  std::erase(text, '&');
  return text;
}

bool IsToldOf(const std::string& page, const std::string& caption) {
  return page.find("`" + caption + "`") != std::string::npos ||
         page.find("**" + caption + "**") != std::string::npos;
}

// A menu that is disabled in this version disables its entries too.
bool IsClosedForGood(const ControlRow& row) {
  for (const ControlRow& other : MainWindowTable()) {
    if (other.Name == row.Parent && !other.Visible && other.Kind == ControlKind::MenuEntry) {
      return true;
    }
  }
  return !row.Visible && row.Kind == ControlKind::MenuEntry;
}

// Nobody can open the music's panel; a pair's captions are above the pair; the heading of the
// window is its name; Load AA is beyond its right edge.
const std::set<std::string_view> kLeftOut{"Orvane_Desk", "P_Dir_Holder", "Panel3D5", "Bt_M_Ld",
                                          "Str_Entm",    "L_Form",       "R_Form",   "AA_name",
                                          "RGB_V(0)",    "RGB_V(1)",     "RGB_V(2)", "Do_color"};

TEST(TheDeskPage, DescribesEveryCaptionOfTheMainWindow) {
  const std::string page = PageAsLine(kDesk);
  int captions = 0;
  for (const ControlRow& row : MainWindowTable()) {
    if (row.Caption.empty() || IsClosedForGood(row) || kLeftOut.contains(row.Name)) continue;
    EXPECT_TRUE(IsToldOf(page, OnScreen(row.Caption)) ||
                (OnScreen(row.Caption).starts_with("Bgr ") && IsToldOf(page, "Bgr 1")))
        << row.Name << " " << row.Caption;
    ++captions;
  }
  EXPECT_GT(captions, 60);
}

// A click brings each caption that the page gives for a state.
TEST(TheDeskPage, DescribesBothStatesOfEachToggle) {
  const std::string page = PageAsLine(kDesk);
  Session session;
  session.Do("enter\nselect AA_Lst 2");
  for (const char* name : {"Bt_BlS", "Bt_CA_Trace", "Bt3_Label", "Bt3_HBD", "Bt3_Sterio",
                           "R_G_Stereo", "Bt3_Isomers"}) {
    const Control& toggle = *session.Desk().FindControl(name);
    const std::string off = OnScreen(toggle.Caption.Get());
    session.Do("click " + std::string(name));
    const std::string on = OnScreen(toggle.Caption.Get());
    std::string both = "`";
    both.append(off).append("` / `").append(on).append("`");
    EXPECT_NE(page.find(both), std::string::npos) << both;
    session.Do("click " + std::string(name));
  }
  session.Do("restart\nenter\nselect AA_Lst 2\nclick Bt3_D_L_Str");
  EXPECT_NE(page.find("`D/L Nst` / `" + session.Desk().main.Bt3_D_L_Str.Caption.Get() + "`"),
            std::string::npos);
}

TEST(TheMeasuringPage, QuotesTheRestingPointer) {
  Student serine(kAminoAcids, "SER");
  const int og = serine.Atom("1 OG");
  const std::string words =
      RestWords(serine.Desk(), serine.Main().Picture1, static_cast<float>(serine.Store().ScrX[og]),
                static_cast<float>(serine.Store().ScrY[og]));
  const std::size_t line = words.find('\n');
  ASSERT_NE(line, std::string::npos) << words;
  for (const std::string& part : {words.substr(0, line), words.substr(line + 1)}) {
    EXPECT_TRUE(Says("docs/handbook/measuring.md", "*" + part + "*")) << part;
  }
  // The torsion is the true one: folded, it would be 90 or more.
  EXPECT_NEAR(serine.Torsion(og, serine.Atom("1 CB"), serine.Atom("1 CA"), serine.Atom("1 N")),
              53.7, 0.05);
}

TEST(TheKeysPage, HasEachRowOfTheSheetBehindF1) {
  const std::string page = PageAsLine("docs/handbook/keys.md");
  int keys = 0;
  for (const SheetSection& section : KeySheet()) {
    for (const SheetRow& row : section.Rows) {
      if (row.Swatch) continue;  // an element, not a key
      EXPECT_NE(page.find("## " + section.Heading + " "), std::string::npos) << section.Heading;
      EXPECT_NE(page.find("| " + row.Head + " | " + row.Words + " |"), std::string::npos)
          << "| " << row.Head << " | " << row.Words << " |";
      ++keys;
    }
  }
  EXPECT_GT(keys, 40);
}

std::vector<fs::path> PagesOf(const fs::path& folder) {
  std::vector<fs::path> pages;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.path().extension() == ".md") pages.push_back(entry.path());
  }
  return pages;
}

std::string ReadAll(const fs::path& file) {
  return house::ReadProjectFile(fs::relative(file, ORVANE_SOURCE_DIR).generic_string());
}

// Picture names that a script asks for.
std::set<std::string> AskedFor(const fs::path& script) {
  std::set<std::string> names;
  std::istringstream lines(ReadAll(script));
  for (std::string line; std::getline(lines, line);) {
    const std::vector<std::string> words = WordsOf(line);
    if (words.size() >= 3 && words[0] == "#" && words[1] == "picture") names.insert(words[2]);
  }
  return names;
}

struct PictureScript {
  const char* Script;  // below docs/
  const char* Folder;  // of its pictures
};
constexpr PictureScript kScripts[] = {
    {"handbook/pictures.txt", "handbook/pictures"},
    {"lessons/peptide-bond/lesson.txt", "lessons/peptide-bond/pictures"},
    {"lessons/hands/lesson.txt", "lessons/hands/pictures"},
    {"lessons/base-pairs/lesson.txt", "lessons/base-pairs/pictures"},
};

TEST(ThePictures, AreThoseThatTheScriptsMake) {
  for (const PictureScript& script : kScripts) {
    std::set<std::string> there;
    for (const auto& entry : fs::directory_iterator(kDocs / script.Folder)) {
      EXPECT_EQ(entry.path().extension(), ".png");
      there.insert(entry.path().stem().string());
      EXPECT_LT(fs::file_size(entry.path()), 100'000u) << entry.path();
    }
    EXPECT_EQ(there, AskedFor(kDocs / script.Script)) << script.Script;
  }
}

TEST(ThePictures, AreEachShownOnAPage) {
  std::string pages;
  for (const char* folder : {"handbook", "lessons"}) {
    for (const fs::path& page : PagesOf(kDocs / folder)) pages += ReadAll(page);
  }
  for (const PictureScript& script : kScripts) {
    for (const std::string& name : AskedFor(kDocs / script.Script)) {
      EXPECT_NE(pages.find("](pictures/" + name + ".png)"), std::string::npos) << name;
    }
  }
}

TEST(ThePictures, ComeFromAScriptThatPlays) {
  const Played played = Play(ReadAll(kDocs / "handbook/pictures.txt"));
  EXPECT_EQ(played.Errors, "");
  EXPECT_EQ(played.ExitCode, 0);
  EXPECT_EQ(played.Lines.find("beep"), std::string::npos);
  EXPECT_EQ(played.Lines.find("failure"), std::string::npos);
}

TEST(TheHandbook, LeadsToEachOfItsPages) {
  for (const char* folder : {"handbook", "lessons"}) {
    const std::string index = ReadAll(kDocs / folder / "README.md");
    for (const fs::path& page : PagesOf(kDocs / folder)) {
      const std::string name = fs::relative(page, kDocs / folder).generic_string();
      if (name == "README.md") continue;
      EXPECT_NE(index.find("](" + name + ")"), std::string::npos) << name;
    }
  }
  EXPECT_TRUE(Says("README.md", "docs/handbook/README.md"));
  EXPECT_TRUE(Says("README.md", "docs/lessons/README.md"));
}

}  // namespace
}  // namespace orvane
