// SPDX-License-Identifier: MIT
#include "Base64.h"
#include "Frame.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace
{

// What a JSON text reads as, written compactly again; "(none)" if it is refused.
std::string read(std::string_view text)
{
  json_t *value = zelwire::parseJson(text);
  std::unique_ptr<char, decltype(&std::free)> out(json_dumps(value, JSON_COMPACT | JSON_ENCODE_ANY),
                                                  &std::free);
  json_decref(value);
  return out ? out.get() : "(none)";
}

TEST(FrameLength, isFourBytesMostSignificantFirst)
{
  unsigned char header[4];
  zelwire::putLength(header, 0x01020304);
  EXPECT_EQ(1, header[0]);
  EXPECT_EQ(4, header[3]);
  EXPECT_EQ(0x01020304u, zelwire::getLength(header));
}

TEST(Json, readsEveryKindOfValue)
{
  EXPECT_EQ(R"({"a":[1,-2,0,true,false,null,"x"],"b":{}})",
            read(" { \"a\" : [ 1 , -2 ,\t0,true,false,null , \"x\" ] ,\n\"b\":{}}\r\n"));
  EXPECT_EQ("9223372036854775807", read("9223372036854775807"));
  EXPECT_EQ("-9223372036854775808", read("-9223372036854775808"));
  EXPECT_EQ("1.5", read("1.5"));
  EXPECT_EQ("150.0", read("1.5e2"));
  EXPECT_EQ("\"\"", read("\"\""));
}

TEST(Json, readsEscapesAndAllOfUnicode)
{
  EXPECT_EQ("\"\\\"\\\\/\\b\\f\\n\\r\\t\"", read(R"("\"\\\/\b\f\n\r\t")"));
  EXPECT_EQ("\"Aé東😀\"", read(R"("A\u00e9\u6771\ud83d\ude00")"));
  EXPECT_EQ("\"é東😀\"", read("\"é東😀\""));
  EXPECT_EQ(R"({"a\"b":{"c\"d":"e\"f"}})", read(R"({"a\"b":{"c\"d":"e\"f"}})"));
}

TEST(Json, refusesWhatIsNotExactlyOneValue)
{
  for (const char *text :
       {"",         " ",          "{",     "}",       "[1",        "[1,]",    "[,1]", "{\"a\"}",
        "{\"a\":}", "{\"a\":1,}", "{a:1}", "{1:1}",   "1 2",       "[] x",    "tru",  "nul",
        "True",     "'a'",        "\"a",   "\"\\x\"", "\"\\u12\"", "\"a\nb\""})
    EXPECT_EQ("(none)", read(text)) << text;
}

TEST(Json, refusesNumbersOfOtherForms)
{
  for (const char *text : {"01", "-", "+1", "1.", ".5", "1e", "1.5e", "0x10", "9223372036854775808", "1e999",
                           "inf", "-inf", "nan"})
    EXPECT_EQ("(none)", read(text)) << text;
}

TEST(Json, refusesTextsThatAreNotUtf8OrHoldNul)
{
  for (const char *text : {"\"\x80\"", "\"\xc0\xaf\"", "\"\xe0\x80\xaf\"", "\"\xed\xa0\x80\"",
                           "\"\xf4\x90\x80\x80\"", "\"\xf5\x80\x80\x80\"", "\"\xe6\x9d\"", "\"\xe6",
                           R"("\u0000")", R"("\ud800")", R"("\udc00")", R"("\ud800\u0041")", R"("\ud800x")"})
    EXPECT_EQ("(none)", read(text)) << text;
  EXPECT_EQ("(none)", read(std::string_view("\"a\0b\"", 5)));
}

TEST(Json, refusesTheSameKeyTwice)
{
  EXPECT_EQ("(none)", read(R"({"a":1,"a":2})"));
  EXPECT_EQ("(none)", read(R"({"a":1,"\u0061":2})"));
  EXPECT_EQ("(none)", read(R"([{"b":{"a":1,"c":1,"a":1}}])"));
}

TEST(Json, refusesNestingBeyondItsBound)
{
  auto nested = [](unsigned depth) { return std::string(depth, '[') + std::string(depth, ']'); };
  EXPECT_NE("(none)", read(nested(zelwire::kMaxDepth)));
  EXPECT_EQ("(none)", read(nested(zelwire::kMaxDepth + 1)));
  EXPECT_EQ("(none)", read(std::string(5000000, '[')));
  EXPECT_EQ("[[[]],[[]]]", read("[[[]],[[]]]"));
}

TEST(Json, refusesMoreThanAFrame)
{
  EXPECT_EQ("(none)", read('"' + std::string(zelwire::kMaxFrame, 'x') + '"'));
}

TEST(Base64, givesBackWhatItTook)
{
  for (std::size_t length = 0; length < 40; ++length) {
    std::string bytes;
    for (std::size_t i = 0; i < length; ++i)
      bytes += static_cast<char>(i * 37 + length);
    std::string text = zelwire::encodeBase64(bytes.data(), bytes.size());
    bool ok = false;
    EXPECT_EQ(bytes, zelwire::decodeBase64(text, ok));
    EXPECT_TRUE(ok);
  }
  EXPECT_EQ("Zm9vYg==", zelwire::encodeBase64("foob", 4));
}

TEST(Base64, refusesWhatItWouldNotWrite)
{
  for (const char *text :
       {"a", "ab", "abc", "ab=c", "a===", "====", "Zm9v\n", "Zm9 ", "Zh==", "Zm9=", "Zm9vYg==Zm9v"}) {
    bool ok = true;
    zelwire::decodeBase64(text, ok);
    EXPECT_FALSE(ok) << text;
  }
}

} // namespace
