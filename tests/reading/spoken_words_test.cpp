#include "reading/spoken_words.h"

#include <gtest/gtest.h>

#include "controls/spoken.h"
#include "desk_fixture.h"
#include "reading/atom_walk.h"
#include "reading/picture_words.h"

namespace orvane {
namespace {

constexpr int kAlanine = 2;  // row of the list

TEST(SpokenWords, ThePictureIsCalledByWhatItShows) {
  DeskAtWork work;
  EXPECT_EQ(NameNow(work.desk, work.desk.main.Picture1), "Empty picture");

  SelectRow(work.desk, work.desk.main.AA_Lst, kAlanine);

  const std::string name = NameNow(work.desk, work.desk.main.Picture1);
  EXPECT_TRUE(name.starts_with("Alanine, 13 atoms, ")) << name;
  EXPECT_EQ(NameNow(work.desk, work.desk.main.P_Sterio), name);
  EXPECT_EQ(NameNow(work.desk, work.desk.main.Bt3_Dts), SpokenName(work.desk.main.Bt3_Dts));
}

TEST(SpokenWords, WhatIsPickedAndMeasuredIsNoPartOfTheName) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.AA_Lst, kAlanine);
  const std::string name = NameNow(work.desk, work.desk.main.Picture1);

  WalkToNext(work.desk);
  PickWalked(work.desk);

  EXPECT_EQ(NameNow(work.desk, work.desk.main.Picture1), name);
  EXPECT_NE(PictureWords(work.desk), name);
}

TEST(SpokenWords, ThePictureTellsWhereTheWalkStandsAndElseWhatAPressDoes) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.AA_Lst, kAlanine);
  const Control& picture = work.desk.main.Picture1;
  EXPECT_EQ(DescriptionNow(work.desk, picture), picture.Row.Tip);

  WalkToNext(work.desk);

  EXPECT_EQ(DescriptionNow(work.desk, picture), WalkWords(work.desk));
  EXPECT_NE(WalkWords(work.desk), "");
}

}  // namespace
}  // namespace orvane
