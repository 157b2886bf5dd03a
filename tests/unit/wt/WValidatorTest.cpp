// SPDX-License-Identifier: MIT
#include "base/FieldValidation.h"

#include <Wt/WValidator>
#include <gtest/gtest.h>

using namespace Wt;

TEST(WValidator, emptyTextIsInvalidOnlyIfMandatory)
{
  WValidator validator;
  EXPECT_FALSE(validator.isMandatory());
  EXPECT_EQ(validator.validate("").state(), WValidator::Valid);
  validator.setMandatory(true);
  EXPECT_EQ(validator.validate("").state(), WValidator::InvalidEmpty);
  EXPECT_EQ(validator.validate(" ").state(), WValidator::Valid);
  EXPECT_TRUE(WValidator(true).isMandatory());
}

TEST(WValidator, saysWhyATextIsInvalid)
{
  WValidator validator(true);
  EXPECT_FALSE(validator.validate("").message().empty());
  validator.setInvalidBlankText("Please fill in");
  EXPECT_EQ(validator.validate("").message().toUTF8(), "Please fill in");
  EXPECT_TRUE(validator.validate("x").message().empty());
}

TEST(WValidator, statesHaveTheirPublicNumbers)
{
  EXPECT_EQ(WValidator::Invalid, 0);
  EXPECT_EQ(WValidator::InvalidEmpty, 1);
  EXPECT_EQ(WValidator::Valid, 2);
}
