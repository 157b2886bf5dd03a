// SPDX-License-Identifier: MIT
#include <Wt/WGlobal>
#include <gtest/gtest.h>

using namespace Wt;

TEST(WFlags, comeFromAFlagAndFromALiteralZero)
{
  WFlags<Side> none = 0;
  WFlags<Side> left = Left;
  EXPECT_EQ(none.value(), 0);
  EXPECT_TRUE(!none);
  EXPECT_EQ(left.value(), 4);
  const Side back = left;
  EXPECT_EQ(back, Left);
}

TEST(WFlags, combineAndSeparate)
{
  WFlags<AlignmentFlag> flags = AlignLeft | AlignTop;
  EXPECT_EQ(flags.value(), 0x81);
  EXPECT_TRUE(flags.testFlag(AlignTop));
  EXPECT_FALSE(flags.testFlag(AlignRight));
  EXPECT_TRUE(flags & AlignLeft);
  EXPECT_FALSE(flags & AlignRight);
  EXPECT_EQ((flags ^ AlignLeft).value(), 0x80);
  EXPECT_EQ((flags & ~WFlags<AlignmentFlag>(AlignTop)).value(), 0x1);
  EXPECT_EQ(flags.clear(AlignLeft).value(), 0x80);
  flags |= AlignRight;
  flags &= AlignRight;
  EXPECT_EQ(flags.value(), 0x2);
}

TEST(WFlags, twoFlagsOfEveryCombinableEnumerationMakeASet)
{
  EXPECT_EQ((Horizontal | Vertical).value(), 3);
  EXPECT_EQ((ItemIsSelectable | ItemIsXHTMLText).value(), 0x41);
  EXPECT_EQ((MatchStartsWith | MatchWrap).value(), 0x22);
  EXPECT_EQ((Left | (Top | Bottom)).value(), 7);
}

TEST(WGlobal, enumeratorsHaveTheirPublicNumbers)
{
  EXPECT_EQ(Left | Right, Horizontals);
  EXPECT_EQ(Top | Bottom, Verticals);
  EXPECT_EQ(All.value(), 15);
  EXPECT_EQ(None.value(), 0);
  EXPECT_EQ(ExtendedSelection, 3);
  EXPECT_EQ(ClearAndSelect, 4);
  EXPECT_EQ(AlignTextBottom, 0x800);
  EXPECT_EQ(AlignHorizontalMask.value(), 0xf);
  EXPECT_EQ(AlignVerticalMask.value(), 0xff0);
  EXPECT_EQ(Key_A, 65);
  EXPECT_EQ(Key_9, 57);
  EXPECT_EQ(Key_F12, 123);
  EXPECT_EQ(Key_Down, 40);
  EXPECT_EQ(UserRole, 32);
}
