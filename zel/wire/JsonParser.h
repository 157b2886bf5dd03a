// SPDX-License-Identifier: MIT
#ifndef ZEL_WIRE_JSON_PARSER_H_
#define ZEL_WIRE_JSON_PARSER_H_

#include <jansson.h>
#include <memory>
#include <string>
#include <string_view>

namespace zelwire
{

/// Reads one JSON text into jansson values, strictly: valid UTF-8, no NUL in texts, integers of 64 bits,
/// no key twice in an object, no nesting deeper than kMaxDepth. jansson's own reader takes a character at
/// a time from a callback; long lists are read some three times as fast here.
class JsonParser
{
public:
  explicit JsonParser(std::string_view text) : at_(text.data()), end_(text.data() + text.size()) {}

  /// The value, owned by the caller; null if the text is not exactly one.
  json_t *parse();

private:
  struct Release {
    void operator()(json_t *value) const { json_decref(value); }
  };
  using Owned = std::unique_ptr<json_t, Release>;

  void skipBlanks();
  bool take(char wanted);
  Owned value();
  Owned object();
  Owned array();
  Owned number();
  Owned word(std::string_view word, json_t *meaning);
  /// The text behind an opening quote. It lives until the next one is read.
  bool text(std::string_view &out);
  bool escapedText(const char *from, std::string_view &out);
  bool escape();
  bool codeUnit(unsigned &unit);
  void append(unsigned codePoint);

  const char *at_;
  const char *end_;
  unsigned depth_ = 0;
  std::string unescaped_;
};

} // namespace zelwire

#endif // ZEL_WIRE_JSON_PARSER_H_
