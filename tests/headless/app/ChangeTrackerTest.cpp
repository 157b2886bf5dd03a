// SPDX-License-Identifier: MIT
#include "ChangeTracker.h"

#include <gtest/gtest.h>

namespace
{

constexpr ChangeTracker::SubsectionId subsection(int number)
{
  return static_cast<ChangeTracker::SubsectionId>(number);
}

constexpr ChangeTracker::SectionId section(int number)
{
  return static_cast<ChangeTracker::SectionId>(number);
}

struct Range {
  int section;
  int first;
  int last;
};

const Range kRanges[] = {{0, 0, 4}, {1, 5, 15}, {2, 16, 16}, {3, 17, 17}, {4, 18, 18}};

} // namespace

TEST(ChangeTracker, beginsWithoutAnyChange)
{
  const ChangeTracker tracker;
  EXPECT_FALSE(tracker.anythingChanged());
  for (int i = 0; i < 19; ++i)
    EXPECT_FALSE(tracker.subsectionChanged(subsection(i)));
  for (int i = 0; i < 5; ++i)
    EXPECT_FALSE(tracker.sectionChanged(section(i)));
}

TEST(ChangeTracker, countsEachOfTheNineteenSubsectionsAlsoThoseWithoutATab)
{
  ASSERT_EQ(ChangeTracker::subsectionCount, 19);
  for (int i = 0; i < 19; ++i) {
    ChangeTracker tracker;
    tracker.subsectionChanged(subsection(i), true);
    EXPECT_TRUE(tracker.anythingChanged()) << i;
    for (int other = 0; other < 19; ++other)
      EXPECT_EQ(tracker.subsectionChanged(subsection(other)), other == i) << i << ", " << other;
    tracker.subsectionChanged(subsection(i), false);
    EXPECT_FALSE(tracker.anythingChanged()) << i;
  }
}

TEST(ChangeTracker, knowsTheSectionOfEachSubsection)
{
  const ChangeTracker tracker;
  for (const Range &range : kRanges)
    for (int i = range.first; i <= range.last; ++i)
      EXPECT_EQ(tracker.subsectionIdToSectionId(subsection(i)), section(range.section)) << i;
}

TEST(ChangeTracker, takesAnUnknownSubsectionForOneOfTheUsers)
{
  const ChangeTracker tracker;
  EXPECT_EQ(tracker.subsectionIdToSectionId(subsection(19)), ChangeTracker::SectionUsers);
  EXPECT_EQ(tracker.subsectionIdToSectionId(subsection(-1)), ChangeTracker::SectionUsers);
}

TEST(ChangeTracker, aSectionHasChangedAsLongAsOneOfItsSubsectionsHas)
{
  for (const Range &range : kRanges)
    for (int i = range.first; i <= range.last; ++i) {
      ChangeTracker tracker;
      tracker.subsectionChanged(subsection(i), true);
      for (int other = 0; other < 5; ++other)
        EXPECT_EQ(tracker.sectionChanged(section(other)), other == range.section) << i << ", " << other;
      tracker.subsectionChanged(subsection(range.first), true);
      tracker.subsectionChanged(subsection(i), false);
      EXPECT_EQ(tracker.sectionChanged(section(range.section)), i != range.first) << i;
    }
}

TEST(ChangeTracker, setsAndClearsAllSubsectionsOfASectionAndNoOther)
{
  for (const Range &range : kRanges) {
    ChangeTracker tracker;
    tracker.sectionChanged(section(range.section), true);
    for (int i = 0; i < 19; ++i)
      EXPECT_EQ(tracker.subsectionChanged(subsection(i)), i >= range.first && i <= range.last) << i;
    for (int other = 0; other < 5; ++other)
      tracker.sectionChanged(section(other), true);
    tracker.sectionChanged(section(range.section), false);
    for (int i = 0; i < 19; ++i)
      EXPECT_EQ(tracker.subsectionChanged(subsection(i)), i < range.first || i > range.last) << i;
  }
}
