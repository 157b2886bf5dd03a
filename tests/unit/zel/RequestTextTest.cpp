// SPDX-License-Identifier: MIT
// The client's own writer of requests says what the JSON library would have said.
#include "RequestText.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace
{

std::string written(const json_t *request)
{
  std::string text = "what was there";
  EXPECT_TRUE(zelclient::writeRequest(request, text));
  return text;
}

std::string expected(const json_t *request)
{
  std::unique_ptr<char, decltype(&std::free)> text(json_dumps(request, JSON_COMPACT), &std::free);
  return text ? text.get() : "(null)";
}

TEST(RequestText, isThatOfTheLibrary)
{
  for (const char *text : {
           R"({})",
           R"({"method":"GET","resource":"rx","query":{"index":17},"select":["name","eid"]})",
           R"({"query":{"index":[1,2,3]},"z":1,"a":2,"m":{"q":{},"p":[]}})",
           R"({"number":-2147483648,"large":4294967295,"larger":9223372036854775807,"flags":[true,false]})",
           R"({"real":1.5,"nothing":null})",
           R"({"text":"quote \" backslash \\ slash / line \n tab \t control \u0001 delete \u007f"})",
           R"({"quote \" in a key":1})",
           "{\"text\":\"Gr\u00fc\u00dfe \u4f60\u597d \U0001f600\"}",
           R"({"":""})",
           R"({"a":{"a":{"a":{"a":{"a":{"a":{"a":{"a":{"a":{"a":{"a":"deep"}}}}}}}}}}})",
           R"({"a":[[[[[[[[[[["deep"]]]]]]]]]]]})",
       }) {
    std::unique_ptr<json_t, decltype(&json_decref)> request(json_loads(text, 0, nullptr), &json_decref);
    ASSERT_NE(nullptr, request) << text;
    EXPECT_EQ(expected(request.get()), written(request.get()));
  }
}

TEST(RequestText, isNoneForWhatContainsItself)
{
  json_t *request = json_object();
  json_t *inner = json_array();
  json_object_set_new(request, "inner", inner);
  json_array_append(inner, request);
  std::string text;
  EXPECT_FALSE(zelclient::writeRequest(request, text));
  json_array_clear(inner);
  json_decref(request);
}

} // namespace
