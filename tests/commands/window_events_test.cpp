#include "commands/window_events.h"

#include <gtest/gtest.h>

#include "desk_fixture.h"

namespace orvane {
namespace {

TEST(PointerShape, WhatLiesAroundThePictureDropsTheCross) {
  DeskAtWork work;
  MainWindow& main = work.desk.main;
  for (const char* name :
       {"AA_Lst",        "Pro_Lst",    "Nuc_Lst",   "DNA_Lst",     "Bt3_Ang",
        "Bt3_Dts",       "Bt3_Trg",    "Bt3_Reset", "R_G_Stereo",  "Label1",
        "P_Auto_Rotate", "P_Dst_Show", "P_Pic1",    "Panel3D1",    "Panel3D2",
        "Panel3D3",      "Panel3D4",   "Panel3D5",  "Sz_Balls(0)", "Sz_Balls(5)"}) {
    main.MousePointer = kPointerCross;
    PointerEnters(work.desk, *main.Find(name));
    EXPECT_EQ(main.MousePointer, kPointerDefault) << name;
  }
  main.MousePointer = kPointerCross;
  PointerEnters(work.desk, main);
  EXPECT_EQ(main.MousePointer, kPointerDefault);
}

TEST(PointerShape, TheKeyboardOnABarDropsTheCross) {
  DeskAtWork work;
  MainWindow& main = work.desk.main;
  for (ScrollBar* bar : {&main.VScroll1, &main.X_TRANS, &main.Y_TRANS, &main.ZoomBar}) {
    main.MousePointer = kPointerCross;
    FocusComes(work.desk, *bar);
    EXPECT_EQ(main.MousePointer, kPointerDefault) << bar->Name;
  }
}

TEST(PointerShape, TheHourglassStays) {
  DeskAtWork work;
  work.desk.main.MousePointer = kPointerHourglass;
  PointerEnters(work.desk, work.desk.main.AA_Lst);

  EXPECT_EQ(work.desk.main.MousePointer, kPointerHourglass);
}

TEST(PointerShape, OtherControlsLeaveTheCross) {
  DeskAtWork work;
  MainWindow& main = work.desk.main;
  for (const char* name : {"Bt3_Label", "Bt3_HBD", "X_Tag(0)", "Label2", "Rt_speed"}) {
    main.MousePointer = kPointerCross;
    PointerEnters(work.desk, *main.Find(name));
    FocusComes(work.desk, *main.Find(name));
    EXPECT_EQ(main.MousePointer, kPointerCross) << name;
  }
}

}  // namespace
}  // namespace orvane
