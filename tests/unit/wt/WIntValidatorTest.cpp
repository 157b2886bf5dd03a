// SPDX-License-Identifier: MIT
#include <Wt/WIntValidator>
#include <gtest/gtest.h>
#include <limits>

using namespace Wt;

TEST(WIntValidator, acceptsDecimalIntegersWithASign)
{
  const WIntValidator validator;
  for (const char *text : {"0", "7", "+7", "-7", "007", "2147483647", "-2147483648"})
    EXPECT_EQ(validator.validate(text).state(), WValidator::Valid) << text;
}

TEST(WIntValidator, refusesEverythingElse)
{
  const WIntValidator validator;
  for (const char *text : {" ", " 1", "1 ", "1.0", "0x1", "1e3", "--1", "+-1", "-+1", "+", "-", "abc",
                           "2147483648", "-2147483649", "99999999999999999999"})
    EXPECT_EQ(validator.validate(text).state(), WValidator::Invalid) << text;
}

TEST(WIntValidator, boundsAreInclusive)
{
  WIntValidator validator(0, 127);
  EXPECT_EQ(validator.validate("0").state(), WValidator::Valid);
  EXPECT_EQ(validator.validate("127").state(), WValidator::Valid);
  EXPECT_EQ(validator.validate("-1").state(), WValidator::Invalid);
  EXPECT_EQ(validator.validate("128").state(), WValidator::Invalid);
  validator.setRange(5, 6);
  validator.setTop(9);
  validator.setBottom(8);
  EXPECT_EQ(validator.bottom(), 8);
  EXPECT_EQ(validator.top(), 9);
  EXPECT_EQ(validator.validate("7").state(), WValidator::Invalid);
}

TEST(WIntValidator, emptyTextIsJudgedBeforeTheRange)
{
  WIntValidator validator(5, 6);
  EXPECT_EQ(validator.validate("").state(), WValidator::Valid);
  validator.setMandatory(true);
  EXPECT_EQ(validator.validate("").state(), WValidator::InvalidEmpty);
}

TEST(WIntValidator, aVeryLongTextIsHarmless)
{
  EXPECT_EQ(WIntValidator().validate(WString(std::string(10000, '9'))).state(), WValidator::Invalid);
  EXPECT_EQ(WIntValidator().validate(WString(std::string(10000, '0') + "1")).state(), WValidator::Valid);
}

TEST(WIntValidator, messagesTellTheRange)
{
  WIntValidator validator(1, 9);
  EXPECT_EQ(validator.validate("0").message().toUTF8(), "The number must be between 1 and 9");
  validator.setInvalidTooLargeText("at most {2}");
  EXPECT_EQ(validator.validate("10").message().toUTF8(), "at most 9");
  validator.setInvalidNotANumberText("digits!");
  EXPECT_EQ(validator.validate("x").message().toUTF8(), "digits!");
}
