// SPDX-License-Identifier: MIT
#include "data/Password.h"

#include <gtest/gtest.h>

namespace
{

using zelsim::hashPassword;
using zelsim::verifyPassword;

class Password : public ::testing::Test
{
protected:
  Password() { zelsim::setPasswordIterations(100); }
};

TEST_F(Password, isVerifiedAgainstItsHashAndNoOther)
{
  std::string kept = hashPassword("secret");
  EXPECT_EQ(std::string::npos, kept.find("secret"));
  EXPECT_TRUE(verifyPassword("secret", kept));
  EXPECT_FALSE(verifyPassword("Secret", kept));
  EXPECT_FALSE(verifyPassword("", kept));
  EXPECT_NE(kept, hashPassword("secret"));
}

TEST_F(Password, isVerifiedUnderTheWorkThatItsHashWasMadeWith)
{
  std::string kept = hashPassword("secret");
  zelsim::setPasswordIterations(7);
  EXPECT_TRUE(verifyPassword("secret", kept));
}

TEST_F(Password, thatIsEmptyIsKeptEmpty)
{
  EXPECT_EQ("", hashPassword(""));
  EXPECT_TRUE(verifyPassword("", ""));
  EXPECT_FALSE(verifyPassword("x", ""));
}

TEST_F(Password, matchesNothingThatIsNoHash)
{
  std::string kept = hashPassword("secret");
  for (std::string bad : {std::string("secret"), kept.substr(0, kept.size() - 1), kept + "0",
                          std::string("pbkdf2-sha256$"), std::string("pbkdf2-sha256$0$00$00"),
                          std::string("pbkdf2-sha256$4000000000$") + kept.substr(kept.size() - 97)})
    EXPECT_FALSE(verifyPassword("secret", bad)) << bad;
}

} // namespace
