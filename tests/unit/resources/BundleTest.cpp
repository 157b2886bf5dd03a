// SPDX-License-Identifier: MIT
#include "ResourceFiles.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <set>
#include <string>

namespace
{

const std::string kMarker = "[RSnnn]";

class Bundle : public testing::Test
{
protected:
  void SetUp() override
  {
    ASSERT_TRUE(document_.load_file(resourcePath("msgs-general.xml").c_str()));
    messages_ = document_.child("messages");
    ASSERT_TRUE(messages_);
  }

  pugi::xml_document document_;
  pugi::xml_node messages_;
};

TEST_F(Bundle, givesEveryKeyOnceAndWithAText)
{
  std::set<std::string> keys;
  for (const pugi::xml_node &message : messages_.children()) {
    const std::string key = message.attribute("id").value();
    EXPECT_STREQ(message.name(), "message");
    EXPECT_TRUE(keys.insert(key).second) << "twice: " << key;
    EXPECT_STRNE(message.child_value(), "") << key;
  }
  EXPECT_GT(keys.size(), 100u);
}

TEST_F(Bundle, letsAKeyThatIsASentenceCarryThatSentence)
{
  for (const pugi::xml_node &message : messages_.children()) {
    const std::string key = message.attribute("id").value();
    if (key.rfind(kMarker, 0) == 0 && key.back() == '.') {
      EXPECT_EQ(key.substr(kMarker.size()), message.child_value());
    }
  }
}

TEST_F(Bundle, showsNoKeyToAPerson)
{
  for (const pugi::xml_node &message : messages_.children()) {
    const std::string text = message.child_value();
    EXPECT_EQ(text.find(kMarker), std::string::npos) << text;
    EXPECT_EQ(text.find("??"), std::string::npos) << text;
    EXPECT_EQ(text.find('_'), std::string::npos) << text;
  }
}

} // namespace
