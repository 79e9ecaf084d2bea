// What is printed, and when.
#include <gtest/gtest.h>

#include "replay/played.h"
#include "runtime/failure.h"

namespace orvane {
namespace {

TEST(Windows, ArePrintedOnlyWhenTheyReallyAppearOrDisappear) {
  Session session;
  session.Do("click Orvane_Front.Author");
  // The splash stayed behind the author's window, so it need not be shown again.
  EXPECT_EQ(session.Do("click Author_frm.Get_in"), "hide Author_frm\n");
}

TEST(ControlsThatComeAndGo, AreNotPrinted) {
  Session session;
  session.Do("enter");
  session.Desk().main.V_RGB_H.Visible = true;
  EXPECT_EQ(session.Do("click Panel3D1"), "");
  EXPECT_EQ(session.Desk().main.V_RGB_H.Visible, false);
}

TEST(APicture, IsPrintedEachTimeItIsGiven) {
  Session session;
  session.Do("enter");
  MainWindow& main = session.Desk().main;
  session.stream.str("");
  main.L_Img.SetPicture(main.Picture1.Image());
  main.L_Img.SetPicture(main.Picture1.Image());
  main.R_Img_b.SetPicture(main.Picture1.Image());
  main.R_Img_b.SetPicture(nullptr);
  EXPECT_EQ(session.stream.str(), "picture L_Img\npicture L_Img\npicture R_Img_b\n");
}

TEST(AStoredImage, IsNotASnapshot) {
  Session session;
  FrontWindow& front = session.Desk().front;
  EXPECT_EQ(session.Do("tick Orvane_Front.Timer1"), "");
  EXPECT_EQ(front.Image1[0].Shown(), front.Pro_Image[1].Shown());
  session.Desk().page.OVN_Icon.SetPicture(front.Pro_Image[1].Shown());
  EXPECT_EQ(session.stream.str(), "");
}

TEST(ABox, IsPrintedByItsKind) {
  Session session;
  ReplayPlatform& platform = *session.player.platform;
  session.stream.str("");
  platform.Beep();
  platform.MessageBox("two\nlines");
  platform.WarningBox("\"quoted\"");
  platform.FailureBox("no");
  EXPECT_EQ(session.stream.str(),
            "beep\nmessage \"two\\nlines\"\nwarning \"\\\"quoted\\\"\"\nfailure \"no\"\n");
}

TEST(AFailure, IsPrintedAndTheScriptGoesOn) {
  Session session;
  session.Do("enter");
  session.Desk().main.Panel3D1.Bind(EventKind::Click, [](const Event&) { FailDivision(); });
  const std::string printed = session.Do("click Panel3D1\nclick WatN");
  EXPECT_EQ(printed.substr(0, 9), "failure \"");
  EXPECT_NE(printed.find("divided by zero"), std::string::npos);
  EXPECT_NE(printed.find("show Content"), std::string::npos);
}

TEST(ASave, NamesFormatFileAndSource) {
  Session session;
  session.Do("enter");
  ReplayPlatform& platform = *session.player.platform;
  Orvane_Desk& desk = session.Desk();
  session.stream.str("");
  platform.SavePicture({.Format = FileFormat::Bmp, .Name = "a.bmp", .Source = &desk.main.Picture1});
  platform.SavePicture(
      {.Format = FileFormat::Jpeg, .Name = "a.jpg", .Source = &desk.main.P_Sterio});
  platform.SavePicture({.Format = FileFormat::Gif, .Name = "a.gif", .Source = &desk.plot});
  platform.SavePicture(
      {.Format = FileFormat::GifFrame, .Name = "\"", .Source = &desk.plot.RamPlt_H});
  EXPECT_EQ(session.stream.str(),
            "save BMP \"a.bmp\" Picture1\n"
            "save JPG \"a.jpg\" P_Sterio\n"
            "save GIF \"a.gif\" Ramachandran\n"
            "save AGIF \"\\\"\" Ramachandran\n");
}

TEST(ThePrinter, WorksUntilItIsSaidNotTo) {
  Session session;
  session.Do("enter");
  EXPECT_EQ(session.Do("click PrImg"), "picture Form_Print.Image1\nprint Form_Print\n");
  EXPECT_EQ(session.Do("no-printer\nclick PrImg"),
            "picture Form_Print.Image1\n"
            "message \"Could'nt print.\\nCheck if the Printer is installed properly.\"\n");
  EXPECT_EQ(session.Do("printer\nclick PrImg"), "picture Form_Print.Image1\nprint Form_Print\n");
}

TEST(TheSound, FailsOnceWithTheNumberThatWasGiven) {
  Session session;
  const std::string open = "sound open \"./3d_pdb\\\\sounds\\\\music3.wav\"\n";
  EXPECT_EQ(session.Do("sound-fails 275\nforce click PMSC3"),
            open + "warning \"ÎØÃ ÛíÑ ãÚÑæÝ (275).\"\n");
  EXPECT_EQ(session.Do("force click PMSC3"), open + "sound play\n");
  EXPECT_EQ(session.Do("force click PMSC3"), "sound close\n" + open + "sound play\n");
}

TEST(TheEnd, IsTheLastLine) {
  Session session;
  session.Do("enter");
  EXPECT_EQ(session.Do("click ExitEntry"), "end\n");
  EXPECT_TRUE(session.player.platform->Ended);
  session.stream.str("");
  session.player.platform->Beep();  // as a handler might on its way out
  EXPECT_EQ(session.stream.str(), "");
}

}  // namespace
}  // namespace orvane
