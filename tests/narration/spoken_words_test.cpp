#include "narration/spoken_words.h"

#include <gtest/gtest.h>

#include "controls/spoken.h"
#include "desk_fixture.h"
#include "narration/atom_walk.h"
#include "narration/atom_words.h"
#include "narration/recipe.h"

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

TEST(SpokenWords, WhatIsPickedAndMeasuredIsNotPartOfTheName) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.AA_Lst, kAlanine);
  const std::string name = NameNow(work.desk, work.desk.main.Picture1);

  WalkToNext(work.desk);
  PickWalked(work.desk);

  EXPECT_EQ(NameNow(work.desk, work.desk.main.Picture1), name);
  ASSERT_EQ(work.desk.measure.PickState, 1);
}

TEST(SpokenWords, ThePictureSaysWhereTheWalkIsOrElseWhatAPressDoes) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.AA_Lst, kAlanine);
  const Control& picture = work.desk.main.Picture1;
  EXPECT_EQ(DescriptionNow(work.desk, picture), picture.Row.Tip);

  WalkToNext(work.desk);

  EXPECT_EQ(DescriptionNow(work.desk, picture),
            WalkWords(work.desk) + "\n" + RecipeWords(work.desk, 1));
  EXPECT_NE(WalkWords(work.desk), "");
}

// The last atom of alanine was built. The helix is a text, and none of it was built.
TEST(SpokenWords, TheWalkSaysHowABuiltAtomWasPlacedAndNothingAboutOthers) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.AA_Lst, kAlanine);
  WalkToLast(work.desk);
  const int last = AtomOfWalk(work.desk);
  EXPECT_EQ(last, 13);
  EXPECT_NE(RecipeWords(work.desk, last), "");
  EXPECT_EQ(WalkWordsAndRecipe(work.desk),
            AtomWords(work.desk, last) + "\n" + RecipeWords(work.desk, last));

  SelectRow(work.desk, work.desk.main.Pro_Lst, 1);
  WalkToLast(work.desk);
  EXPECT_EQ(WalkWordsAndRecipe(work.desk), AtomWords(work.desk, AtomOfWalk(work.desk)));
}

}  // namespace
}  // namespace orvane
