// SPDX-License-Identifier: MIT
#include "NevoUtil.h"

#include <Wt/WString>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <unistd.h>

namespace
{

const std::string k24x24Png("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\0\x18\0\0\0\x18", 24);

// A file of the test's own that is `size` bytes long, or as long as its content.
class ImageFile
{
public:
  explicit ImageFile(const std::string &content, off_t size = -1)
  {
    char name[] = "/tmp/nevo-util-test-XXXXXX";
    const int file = mkstemp(name);
    path_ = name;
    if (write(file, content.data(), content.size()) != static_cast<ssize_t>(content.size()) ||
        (size >= 0 && ftruncate(file, size) != 0))
      ADD_FAILURE() << "cannot write " << path_;
    close(file);
  }
  ~ImageFile() { unlink(path_.c_str()); }
  const char *path() const { return path_.c_str(); }

private:
  std::string path_;
};

} // namespace

TEST(NevoUtil, takesOnlyDigitsWithAnOptionalMinusForANumber)
{
  EXPECT_TRUE(NevoUtil_isNumeric("0"));
  EXPECT_TRUE(NevoUtil_isNumeric("-12"));
  EXPECT_TRUE(NevoUtil_isNumeric("00123456789012345678901234567890"));
  for (const char *text : {"", "-", "+1", " 1", "1 ", "1.5", "--1", "1-", "a", "1a"})
    EXPECT_FALSE(NevoUtil_isNumeric(text)) << text;
  EXPECT_FALSE(NevoUtil_isNumeric(nullptr));
}

TEST(NevoUtil, countsTheCharactersOfANumber)
{
  EXPECT_EQ(NevoUtil_strLenOfDecInt(0), 1);
  EXPECT_EQ(NevoUtil_strLenOfDecInt(10), 2);
  EXPECT_EQ(NevoUtil_strLenOfDecInt(-10), 3);
  EXPECT_EQ(NevoUtil_strLenOfDecInt(std::numeric_limits<int>::min()), 11);
}

TEST(NevoUtil, lowersATextInPlace)
{
  char text[] = "HalDen-\xC3\x9C";
  EXPECT_EQ(NevoUtil_toLowercase(text), text);
  EXPECT_STREQ(text, "halden-\xC3\x9C");
  char empty[] = "";
  EXPECT_STREQ(NevoUtil_toLowercase(empty), "");
  EXPECT_EQ(NevoUtil_toLowercase(nullptr), nullptr);
}

TEST(NevoUtil, acceptsAPngOf24By24Pixels)
{
  const ImageFile exact(k24x24Png);
  EXPECT_EQ(NevoUtil_validate24x24PngFile(exact.path()), 0);
  const ImageFile longer(k24x24Png + "anything");
  EXPECT_EQ(NevoUtil_validate24x24PngFile(longer.path()), 0);
  const ImageFile largest(k24x24Png, 10485760);
  EXPECT_EQ(NevoUtil_validate24x24PngFile(largest.path()), 0);
}

TEST(NevoUtil, refusesOtherFilesAsImages)
{
  std::string other = k24x24Png;
  other[19] = other[23] = 32;
  const ImageFile larger(other);
  EXPECT_EQ(NevoUtil_validate24x24PngFile(larger.path()), 1);
  const ImageFile cut(k24x24Png.substr(0, 23));
  EXPECT_EQ(NevoUtil_validate24x24PngFile(cut.path()), 1);
  const ImageFile empty("");
  EXPECT_EQ(NevoUtil_validate24x24PngFile(empty.path()), 1);
  EXPECT_EQ(NevoUtil_validate24x24PngFile("/tmp/no-such-folder/image.png"), 1);
  EXPECT_EQ(NevoUtil_validate24x24PngFile("/tmp"), 1);
  EXPECT_EQ(NevoUtil_validate24x24PngFile(nullptr), 1);
}

TEST(NevoUtil, tellsAnImageFileThatIsTooLarge)
{
  const ImageFile eleven(k24x24Png, 11 * 1024 * 1024);
  EXPECT_EQ(NevoUtil_validate24x24PngFile(eleven.path()), 8);
  const ImageFile justTooLarge("no image", 10485761);
  EXPECT_EQ(NevoUtil_validate24x24PngFile(justTooLarge.path()), 8);
}

TEST(NevoUtil, joinsMessagesBehindASentenceWithBlanks)
{
  Wt::WString sentence = Wt::WString::fromUTF8("Sorry.");
  NevoUtil_concatErrMsgs(sentence, {"One {1}.", "Zwei \xC3\xBC."});
  EXPECT_EQ(sentence.toUTF8(), "Sorry. One {1}. Zwei \xC3\xBC.");
  NevoUtil_concatErrMsgs(sentence, {});
  EXPECT_EQ(sentence.toUTF8(), "Sorry. One {1}. Zwei \xC3\xBC.");
}

TEST(NevoUtil, writesDurationsWithTheUnitsTheyNeed)
{
  EXPECT_EQ(NevoUtil_secsToFormattedTimeString(0), "0:00");
  EXPECT_EQ(NevoUtil_secsToFormattedTimeString(59), "0:59");
  EXPECT_EQ(NevoUtil_secsToFormattedTimeString(3599), "59:59");
  EXPECT_EQ(NevoUtil_secsToFormattedTimeString(3600), "1:00:00");
  EXPECT_EQ(NevoUtil_secsToFormattedTimeString(86399), "23:59:59");
  EXPECT_EQ(NevoUtil_secsToFormattedTimeString(86400), "1:00:00:00");
  EXPECT_EQ(NevoUtil_secsToFormattedTimeString(90061), "1:01:01:01");
  EXPECT_EQ(NevoUtil_secsToFormattedTimeString(4294967295U), "49710:06:28:15");
}

TEST(NevoUtilLessThan, putsAnEmptyTextFirst)
{
  EXPECT_FALSE(NevoUtil_lessThan("", ""));
  EXPECT_TRUE(NevoUtil_lessThan("", "a"));
  EXPECT_FALSE(NevoUtil_lessThan("a", ""));
  EXPECT_TRUE(NevoUtil_lessThan("Rx", "Rx 1"));
  EXPECT_FALSE(NevoUtil_lessThan("Rx 1", "Rx"));
  EXPECT_FALSE(NevoUtil_lessThan("Rx", "Rx"));
}

TEST(NevoUtilLessThan, ordersTextsThatEndInNumbersByTheNumber)
{
  EXPECT_TRUE(NevoUtil_lessThan("Rx 9", "Rx 10"));
  EXPECT_FALSE(NevoUtil_lessThan("Rx 10", "Rx 9"));
  EXPECT_TRUE(NevoUtil_lessThan("9", "10"));
  EXPECT_TRUE(NevoUtil_lessThan("12", "13"));
  EXPECT_FALSE(NevoUtil_lessThan("007", "7"));
  EXPECT_FALSE(NevoUtil_lessThan("7", "007"));
}

TEST(NevoUtilLessThan, heedsTheSignOfANumber)
{
  EXPECT_TRUE(NevoUtil_lessThan("-2", "-1"));
  EXPECT_FALSE(NevoUtil_lessThan("-1", "-2"));
  EXPECT_TRUE(NevoUtil_lessThan("-10", "9"));
  EXPECT_TRUE(NevoUtil_lessThan("Rx -10", "Rx 9"));
  EXPECT_TRUE(NevoUtil_lessThan("Rx-9", "Rx-10"));
}

TEST(NevoUtilLessThan, ordersOtherTextsByTheirBytes)
{
  EXPECT_TRUE(NevoUtil_lessThan("abc", "abd"));
  EXPECT_FALSE(NevoUtil_lessThan("abd", "abc"));
  EXPECT_FALSE(NevoUtil_lessThan("Rx 9a", "Rx 10"));
  EXPECT_TRUE(NevoUtil_lessThan("Rx 10", "Rx 9a"));
  EXPECT_TRUE(NevoUtil_lessThan("Z", "a"));
  EXPECT_TRUE(NevoUtil_lessThan("z", "\xC3\xA4"));
}

TEST(NevoUtilLessThan, comparesNumbersThatAreTooLargeAsTexts)
{
  EXPECT_TRUE(NevoUtil_lessThan("100000000000000000000", "9"));
  EXPECT_FALSE(NevoUtil_lessThan("9", "100000000000000000000"));
}
