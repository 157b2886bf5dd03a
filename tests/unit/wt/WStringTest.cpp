// SPDX-License-Identifier: MIT
#include "base/StringResolver.h"

#include <Wt/WString>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

using namespace Wt;

namespace
{

thread_local std::map<std::string, std::string> *texts = nullptr;

class WStringTest : public testing::Test
{
protected:
  WStringTest()
  {
    texts = &texts_;
    formerStrings_ = Engine::setStringResolver([](const std::string &key, std::string &result) {
      const auto found = texts->find(key);
      if (found != texts->end())
        result = found->second;
      return found != texts->end();
    });
    formerPlurals_ =
        Engine::setPluralResolver([](const std::string &key, std::string &result, std::uint64_t n) {
          result = key + (n == 1 ? " one" : " many");
          return key == "device";
        });
  }
  ~WStringTest() override
  {
    Engine::setStringResolver(formerStrings_);
    Engine::setPluralResolver(formerPlurals_);
    WString::setDefaultEncoding(DefaultEncoding);
  }

  std::map<std::string, std::string> texts_;

private:
  Engine::StringResolver formerStrings_;
  Engine::PluralResolver formerPlurals_;
};

const std::string kUmlaut = "\xc3\xbc";

} // namespace

TEST_F(WStringTest, aPlainTextCostsOneStringAndOnePointer)
{
  EXPECT_LE(sizeof(WString), sizeof(std::string) + sizeof(void *));
}

TEST_F(WStringTest, aLiteralIsItself)
{
  EXPECT_TRUE(WString().empty());
  EXPECT_TRUE(WString::Empty.empty());
  EXPECT_EQ(WString("abc").toUTF8(), "abc");
  EXPECT_TRUE(WString("abc").literal());
  EXPECT_EQ(WString("abc").key(), "");
  EXPECT_EQ(WString(L"\u00fc").toUTF8(), kUmlaut);
  EXPECT_EQ(WString::fromUTF8(kUmlaut).value(), L"\u00fc");
  EXPECT_EQ(WString(kUmlaut, UTF8).toUTF8(), kUmlaut);
  EXPECT_TRUE(WString(static_cast<const char *>(nullptr)).empty());
}

TEST_F(WStringTest, narrowTextsAreReadByTheGlobalLocaleUnlessToldOtherwise)
{
  // The test runs in the classic locale, which knows ASCII only.
  EXPECT_EQ(WString(kUmlaut).toUTF8(), "??");
  WString::setDefaultEncoding(UTF8);
  EXPECT_EQ(WString(kUmlaut).toUTF8(), kUmlaut);
  EXPECT_EQ(WString(kUmlaut, LocalEncoding).toUTF8(), "??");
}

TEST_F(WStringTest, narrowReplacesWhatTheLocaleLacks)
{
  EXPECT_EQ(WString::fromUTF8("a" + kUmlaut + "b").narrow(std::locale::classic()), "a?b");
}

TEST_F(WStringTest, invalidBytesAreReplacedOnlyWhenAsked)
{
  EXPECT_EQ(WString::fromUTF8("a\xff"
                              "b",
                              true)
                .toUTF8(),
            "a?b");
  EXPECT_EQ(WString::fromUTF8("a\xff").toUTF8(), "a\xff");
  EXPECT_EQ(WString::fromUTF8("a\xff").value(), L"a?");
}

TEST_F(WStringTest, aTranslatedTextIsLookedUpAtEveryConversion)
{
  const WString text = WString::tr("greeting");
  EXPECT_EQ(text.toUTF8(), "??greeting??");
  texts_["greeting"] = "Hello";
  EXPECT_EQ(text.toUTF8(), "Hello");
  texts_["greeting"] = "Bonjour";
  EXPECT_EQ(text.toUTF8(), "Bonjour");
  EXPECT_FALSE(text.literal());
  EXPECT_EQ(text.key(), "greeting");
  EXPECT_TRUE(WString(text).refresh());
  EXPECT_FALSE(WString("x").refresh());
}

TEST_F(WStringTest, anUnknownKeyShowsBetweenQuestionMarks)
{
  EXPECT_EQ(WString::tr("[RS001]No such text").toUTF8(), "??[RS001]No such text??");
  Engine::setStringResolver(nullptr);
  EXPECT_EQ(WString::tr("greeting").toUTF8(), "??greeting??");
}

TEST_F(WStringTest, argumentsFillTheirPlaces)
{
  EXPECT_EQ(WString("{1} of {2}").arg(3).arg(std::string("ten")).toUTF8(), "3 of ten");
  EXPECT_EQ(WString("{2}{1}{1}").arg("a").arg(WString("b")).toUTF8(), "baa");
  EXPECT_EQ(WString("{1}").arg(1.5).toUTF8(), "1.5");
  EXPECT_EQ(WString("{1} {3} {x} {").arg("a").toUTF8(), "a {3} {x} {");
  texts_["count"] = "{1} devices";
  EXPECT_EQ(WString::tr("count").arg(5).toUTF8(), "5 devices");
}

TEST_F(WStringTest, whatAnArgumentHoldsIsNotReplacedAgain)
{
  EXPECT_EQ(WString("{1}-{2}").arg("{2}").arg("x").toUTF8(), "{2}-x");
}

TEST_F(WStringTest, anArgumentMayBeTheTextItself)
{
  WString text("<{1}>");
  text.arg(text);
  EXPECT_EQ(text.toUTF8(), "<<{1}>>");
}

TEST_F(WStringTest, copiesAreIndependent)
{
  texts_["count"] = "{1}";
  WString first = WString::tr("count").arg(1);
  WString second = first;
  second.arg(2);
  EXPECT_EQ(first.args().size(), 1u);
  EXPECT_EQ(second.args().size(), 2u);
  first = second;
  first = *&first;
  EXPECT_EQ(first.args().size(), 2u);
  WString moved = std::move(second);
  EXPECT_EQ(moved.key(), "count");
}

TEST_F(WStringTest, appendingMakesALiteral)
{
  texts_["greeting"] = "Hello";
  WString text = WString::tr("greeting");
  text += " you";
  texts_["greeting"] = "Bonjour";
  EXPECT_EQ(text.toUTF8(), "Hello you");
  EXPECT_TRUE(text.literal());
  EXPECT_EQ(("<" + WString::tr("greeting") + ">").toUTF8(), "<Bonjour>");
}

TEST_F(WStringTest, comparesTheResolvedTexts)
{
  texts_["a"] = "same";
  texts_["b"] = "same";
  EXPECT_EQ(WString::tr("a"), WString::tr("b"));
  EXPECT_EQ(WString::tr("a"), WString("same"));
  EXPECT_NE(WString("a"), WString("b"));
  EXPECT_LT(WString("a"), WString("b"));
  EXPECT_GT(WString("b"), WString("a"));
  EXPECT_TRUE(WString("b") == "b");
}

TEST_F(WStringTest, pluralsAskForTheirForm)
{
  EXPECT_EQ(WString::trn("device", 1).toUTF8(), "device one");
  EXPECT_EQ(WString::trn("device", 2).toUTF8(), "device many");
  EXPECT_EQ(WString::trn("nothing", 2).toUTF8(), "??nothing??");
}

TEST_F(WStringTest, trimsBlanks)
{
  EXPECT_EQ(WString("  a b\t\n").trim().toUTF8(), "a b");
  EXPECT_TRUE(WString("  ").trim().empty());
}

TEST_F(WStringTest, goesToAStream)
{
  std::ostringstream out;
  out << WString("text");
  EXPECT_EQ(out.str(), "text");
}
