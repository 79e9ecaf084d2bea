// Every caption fits its control with a pixel to spare, in every wording that it can have.
#include <gtest/gtest.h>

#include <QFontMetricsF>

#include "desktop/look/fonts.h"
#include "look/dress.h"
#include "window_fixture.h"

namespace orvane {
namespace {

struct Wording {
  const char* Control;
  const char* Caption;
};

// Captions that handlers set, in addition to those of the table.
constexpr Wording kWordings[] = {
    {"Bt_BlS", "Ball-Stick"},
    {"Bt_BlS", "Wire-Frame"},
    {"Bt_CA_Trace", "Ca-trace ON"},
    {"Bt_CA_Trace", "Ca-trace OFF"},
    {"Bt3_Label", "Label On"},
    {"Bt3_Label", "Label Off"},
    {"Bt3_HBD", "H-bond On"},
    {"Bt3_HBD", "H-bond Off"},
    {"Bt3_Sterio", "Stereo On"},
    {"Bt3_Sterio", "Stereo Off"},
    {"R_G_Stereo", "Red-Green Stereo On"},
    {"R_G_Stereo", "Red-Green Stereo Off"},
    {"Bt3_Isomers", "D / L On"},
    {"Bt3_Isomers", "D/L Off"},
    {"Bt3_D_L_Str", "D/L Str"},
    {"Bt3_D_L_Str", "D/L Nst"},
    {"Str_Entm", "Stereo Pair"},
    {"Str_Entm", "Enantiomers"},
};

double Width(const QString& text, Type type, QFont::HintingPreference hinting) {
  QFont font = FontOf(type);
  font.setHintingPreference(hinting);
  return QFontMetricsF(font).horizontalAdvance(text);
}

void ExpectFits(const Control& control, std::string_view caption) {
  const Dress& dress = DressOf(control);
  if (dress.Shape == DressShape::Tab) return;  // its caption appears in a flyout of its own width
  // The heaviest weight that the text style can give a bevelled control.
  const bool heavy = control.Name == "X_Tag" || control.Name == "P_Auto_Rotate";
  const Type type = dress.Shape == DressShape::Bevel ? Type{11, heavy ? 600 : 500} : dress.Letters;
  QString text = QString::fromUtf8(caption.data(), static_cast<qsizetype>(caption.size()));
  if (dress.Align == Side::Centre) text = text.trimmed();
  const Place at = control.At;
  const int room = (dress.Upwards ? at.Height : at.Width) / TwipsPerPixel;
  // The edge at either side leaves no room for letters.
  const double inner =
      room - dress.TextLeft - dress.TextRight - (dress.Shape == DressShape::Bevel ? 2 : 0);
  // The turned label has two pixels of bare background at both ends; these are its pixel to spare.
  const double spare = dress.Upwards ? 0 : 1;
  for (const auto hinting :
       {QFont::PreferNoHinting, QFont::PreferVerticalHinting, QFont::PreferFullHinting}) {
    EXPECT_LE(Width(text, type, hinting) + spare, inner)
        << control.FullName() << ": " << text.toStdString() << ", hinting " << hinting;
  }
}

TEST(Captions, EachOfTheTableFitsWithAPixelToSpare) {
  WindowAtWork work;

  for (const Control* control : work.main.Controls) {
    const ControlKind kind = control->Row.Kind;
    if (kind == ControlKind::MenuEntry || kind == ControlKind::TextBox) continue;
    if (!control->Row.Caption.empty()) ExpectFits(*control, control->Row.Caption);
  }
}

TEST(Captions, EachWordingThatAHandlerSetsFitsToo) {
  WindowAtWork work;

  for (const Wording& wording : kWordings) {
    ExpectFits(*work.main.Find(wording.Control), wording.Caption);
  }
}

TEST(Captions, TheLongestTorsionOfThreeLetterAtomsIsNotCut) {
  WindowAtWork work;
  const QString line = "Tor >   OD2 -  CG2 -  CD2 -  NE2 : -157.34 Deg";
  const Place at = work.main.P_Dst_Show.At;
  const double room =
      static_cast<double>(at.Width) / TwipsPerPixel - DressOf(work.main.P_Dst_Show).TextLeft;

  EXPECT_LE(WidthOf({11, 400}, line), room);
}

// A line of any length stays within its box, since it is drawn narrower.
TEST(Captions, ALineTooLongForTheResultIsDrawnNarrower) {
  WindowAtWork work;
  work.main.P_Dst_Show.Caption = std::string(90, 'W');
  const QImage shot = work.Shot();
  const QRect face = work.ViewOf(work.main.P_Dst_Show).Stand().Face;

  // There is ink right up to the edge of the box, and none beyond it.
  int last = 0;
  for (int x = face.left(); x < shot.width(); ++x) {
    for (int y = face.top() + 10; y < face.top() + 34; ++y) {
      if (qGray(shot.pixel(x, y)) < 200) last = x;
    }
  }
  EXPECT_GT(last, face.right() - 6);
  EXPECT_LE(last, face.right());
}

}  // namespace
}  // namespace orvane
