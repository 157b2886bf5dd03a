// SPDX-License-Identifier: MIT
#include "base/Log.h"

#include <Wt/WRegExpValidator>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

bool accepts(const std::string &pattern, const std::string &text)
{
  return WRegExpValidator(WString::fromUTF8(pattern)).validate(WString::fromUTF8(text)).state() ==
         WValidator::Valid;
}

} // namespace

TEST(WRegExpValidator, theWholeTextMustMatch)
{
  EXPECT_TRUE(accepts("[a-z]+", "abc"));
  EXPECT_FALSE(accepts("[a-z]+", "abc1"));
  EXPECT_FALSE(accepts("[a-z]+", "1abc"));
  EXPECT_TRUE(accepts("^([A-Za-z0-9]*)$", "Az9"));
  EXPECT_FALSE(accepts("^([A-Za-z0-9]*)$", "A z"));
}

TEST(WRegExpValidator, emptyTextIsJudgedBeforeThePattern)
{
  WRegExpValidator validator("x+");
  EXPECT_EQ(validator.validate("").state(), WValidator::Valid);
  validator.setMandatory(true);
  EXPECT_EQ(validator.validate("").state(), WValidator::InvalidEmpty);
  EXPECT_EQ(validator.validate(" ").state(), WValidator::Invalid);
}

TEST(WRegExpValidator, withoutAPatternAllTextIsValid)
{
  WRegExpValidator validator;
  EXPECT_EQ(validator.validate("anything").state(), WValidator::Valid);
  validator.setMandatory(true);
  EXPECT_EQ(validator.validate("").state(), WValidator::InvalidEmpty);
}

TEST(WRegExpValidator, mayIgnoreCase)
{
  WRegExpValidator validator("[a-c]x");
  EXPECT_EQ(validator.validate("BX").state(), WValidator::Invalid);
  validator.setFlags(MatchCaseInsensitive);
  EXPECT_EQ(validator.validate("BX").state(), WValidator::Valid);
  EXPECT_EQ(validator.validate("DX").state(), WValidator::Invalid);
}

TEST(WRegExpValidator, saysWhyATextIsInvalid)
{
  WRegExpValidator validator("x");
  EXPECT_FALSE(validator.validate("y").message().empty());
  validator.setInvalidNoMatchText("only x");
  EXPECT_EQ(validator.validate("y").message().toUTF8(), "only x");
  validator.setRegExp("y");
  EXPECT_EQ(validator.regExp().toUTF8(), "y");
  EXPECT_EQ(validator.validate("y").state(), WValidator::Valid);
}

TEST(WRegExpValidator, aPatternThatIsNotWellFormedIsLoggedAndMatchesNothing)
{
  std::string logged;
  const auto former = Engine::setLogSink(
      [&logged](Engine::LogLevel, std::string_view, std::string_view message) { logged += message; });
  WRegExpValidator validator("(");
  Engine::setLogSink(former);
  EXPECT_NE(logged.find("\"(\""), std::string::npos);
  EXPECT_EQ(validator.validate("(").state(), WValidator::Invalid);
}

TEST(WRegExpValidator, veryLongTextsAreHarmless)
{
  const std::string text(10000, 'a');
  EXPECT_TRUE(accepts("(a|aa|a*)*", text));
  EXPECT_FALSE(accepts("(a*)*b", text));
  EXPECT_FALSE(accepts("((a+)+)+$|^x", text + "!"));
  EXPECT_TRUE(accepts("^([ -~\n]*)$", text));
}
