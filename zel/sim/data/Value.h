// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_VALUE_H_
#define ZEL_SIM_DATA_VALUE_H_

#include <cstdint>
#include <cstring>
#include <jansson.h>
#include <memory>
#include <string>
#include <string_view>

namespace zelsim
{

struct JsonDeleter {
  void operator()(json_t *value) const { json_decref(value); }
};
/// A counted reference to a jansson value.
using Json = std::unique_ptr<json_t, JsonDeleter>;

/// The value of one parameter in 16 bytes. Texts, words, base64 and nested JSON are all kept as text:
/// records are many, are sent far more often than they are changed, and text can be sent as it is.
class Value
{
public:
  enum class Kind : std::uint8_t { None, Integer, Boolean, Text, Nested };

  /// None: the record has the parameter's default.
  Value() = default;
  static Value integer(std::int64_t number);
  static Value boolean(bool flag);
  static Value text(std::string_view text);
  /// Compact JSON of an object or a list.
  static Value nested(std::string_view json);
  static Value nested(const json_t *json);

  Value(const Value &other);
  Value(Value &&other) noexcept;
  Value &operator=(Value other) noexcept;
  ~Value();

  Kind kind() const { return kind_; }
  bool isNone() const { return kind_ == Kind::None; }
  /// 0 unless Integer or Boolean.
  std::int64_t number() const;
  /// Empty unless Text or Nested. Lives as long as the value.
  std::string_view text() const;

  bool operator==(const Value &other) const;
  bool operator!=(const Value &other) const { return !(*this == other); }

private:
  Value(Kind kind, std::string_view text);

  Kind kind_ = Kind::None;
  std::uint32_t size_ = 0;
  union {
    std::int64_t number_ = 0;
    char *text_;
  };
};

} // namespace zelsim

#endif // ZEL_SIM_DATA_VALUE_H_
