// SPDX-License-Identifier: MIT
#include "Attributes.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace
{

// A key file of the test's own, in use while the object lives.
class KeyFile
{
public:
  explicit KeyFile(const std::string &content)
  {
    char name[] = "/tmp/attributes-test-XXXXXX";
    const int file = mkstemp(name);
    path_ = name;
    if (file < 0 || write(file, content.data(), content.size()) != static_cast<ssize_t>(content.size()))
      ADD_FAILURE() << "cannot write " << path_;
    close(file);
    setenv("NEVO_ATTRIBUTES", path_.c_str(), 1);
  }
  ~KeyFile() { unlink(path_.c_str()); }

private:
  std::string path_;
};

} // namespace

TEST(Attributes, givesTheValueOfAKey)
{
  const KeyFile file("switch.oem.short=halden\nfirmware.appversion=1.2.3\n");
  EXPECT_STREQ(Attributes_getString("switch.oem.short", "unknown"), "halden");
  EXPECT_STREQ(Attributes_getString("firmware.appversion", nullptr), "1.2.3");
}

TEST(Attributes, givesTheDefaultForAnUnknownKeyAndTheDefaultMayBeNull)
{
  const KeyFile file("a=b\n");
  EXPECT_STREQ(Attributes_getString("vendor.website", ""), "");
  EXPECT_EQ(Attributes_getString("firmware.appversion", nullptr), nullptr);
  EXPECT_STREQ(Attributes_getString(nullptr, "none"), "none");
}

TEST(Attributes, ignoresCommentsBlankLinesAndLinesWithoutAnEqualsSign)
{
  const KeyFile file("# a=1\n\n   # a=2\nnonsense\n a = 3 = three \r\n");
  EXPECT_STREQ(Attributes_getString("a", "none"), "3 = three");
  EXPECT_EQ(Attributes_getString("nonsense", nullptr), nullptr);
  EXPECT_EQ(Attributes_getString("# a", nullptr), nullptr);
}

TEST(Attributes, keepsAnEmptyValueApartFromAnUnknownKey)
{
  const KeyFile file("vendor.website=\n");
  EXPECT_STREQ(Attributes_getString("vendor.website", "default"), "");
}

TEST(Attributes, takesTheLastOfSeveralLinesWithTheSameKey)
{
  const KeyFile file("a=1\na=2\n");
  EXPECT_STREQ(Attributes_getString("a", "none"), "2");
}

TEST(Attributes, givesDefaultsWithoutAFileAndForAFolder)
{
  setenv("NEVO_ATTRIBUTES", "/tmp/no-such-folder/attributes", 1);
  EXPECT_STREQ(Attributes_getString("a", "none"), "none");
  setenv("NEVO_ATTRIBUTES", "/tmp", 1);
  EXPECT_STREQ(Attributes_getString("a", "none"), "none");
}

TEST(Attributes, keepsATextThatWasGivenOutWhenTheFileGoesAndAnotherIsRead)
{
  const char *text = nullptr;
  {
    const KeyFile file("a=first\n");
    text = Attributes_getString("a", nullptr);
  }
  const KeyFile other("a=second\n");
  EXPECT_STREQ(Attributes_getString("a", nullptr), "second");
  EXPECT_STREQ(text, "first");
}

TEST(Attributes, survivesAFileOfBinaryRubbish)
{
  const KeyFile file(std::string("\0\xff=\0\n=\n==\nkey=\xff\xfe", 16));
  EXPECT_STREQ(Attributes_getString("key", "none"), "\xff\xfe");
  EXPECT_STREQ(Attributes_getString("other", "none"), "none");
}
