// SPDX-License-Identifier: MIT
#include "rules/Validate.h"

#include "Base64.h"
#include "data/Password.h"

#include <algorithm>
#include <charconv>

namespace zelsim
{

namespace
{

std::string_view textOf(const json_t *value)
{
  return json_is_string(value) ? std::string_view(json_string_value(value), json_string_length(value))
                               : std::string_view();
}

std::int64_t characters(std::string_view utf8)
{
  return std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xc0) != 0x80; });
}

bool toInteger(const json_t *given, std::int64_t &number)
{
  if (json_is_integer(given)) {
    number = json_integer_value(given);
    return true;
  }
  std::string_view digits = textOf(given);
  auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return !digits.empty() && error == std::errc() && end == digits.data() + digits.size();
}

bool toFlag(const json_t *given, bool &flag)
{
  std::string_view word = textOf(given);
  std::int64_t number = 0;
  flag = json_is_true(given) || word == "enabled" || word == "is_true";
  if (json_is_boolean(given) || flag || word == "disabled" || word == "is_false")
    return true;
  if (!toInteger(given, number) || number < 0 || number > 1)
    return false;
  flag = number == 1;
  return true;
}

// The word that `given` stands for, or a null view.
std::string_view toWord(const Parameter &parameter, const json_t *given)
{
  if (json_is_boolean(given) && hasWord(parameter.words, "enabled"))
    return json_is_true(given) ? "enabled" : "disabled";
  return textOf(given);
}

Errno checkText(const Parameter &parameter, const json_t *given)
{
  if (!json_is_string(given))
    return kInvalidFormat;
  std::int64_t length = characters(textOf(given));
  return length < parameter.min ? kTooShort : length > parameter.max ? kTooLong : kOk;
}

Errno checkInteger(const Parameter &parameter, const json_t *given)
{
  std::int64_t number = 0;
  if (!toInteger(given, number))
    return kInvalidFormat;
  return number < parameter.min || number > parameter.max ? kOutOfRange : kOk;
}

Errno checkBinary(const Parameter &parameter, const json_t *given)
{
  bool ok = false;
  std::string bytes = zelwire::decodeBase64(textOf(given), ok);
  if (!json_is_string(given) || !ok)
    return kBadContent;
  std::int64_t size = static_cast<std::int64_t>(bytes.size());
  return size < parameter.min || size > parameter.max ? kInvalidBinaryLength : kOk;
}

void validateMembers(const Parameter &parameter, const json_t *given, std::vector<Problem> &problems)
{
  if (!json_is_object(given)) {
    problems.emplace_back(kInvalidFormat, parameter.name);
    return;
  }
  const char *name;
  json_t *value;
  json_object_foreach(const_cast<json_t *>(given), name, value)
  {
    if (const Parameter *member = findMember(parameter, name))
      validate(*member, value, problems);
    else
      problems.emplace_back(kUnknownParameter, name);
  }
}

void validateList(const Parameter &parameter, const json_t *given, std::vector<Problem> &problems)
{
  if (!json_is_array(given))
    problems.emplace_back(kInvalidFormat, parameter.name);
  else if (json_array_size(given) > static_cast<std::size_t>(parameter.max))
    problems.emplace_back(kTooLarge, parameter.name);
  else
    for (std::size_t i = 0; i < json_array_size(given); ++i)
      validateMembers(parameter, json_array_get(given, i), problems);
}

Errno checkPlain(const Parameter &parameter, const json_t *given)
{
  bool flag = false;
  switch (parameter.type) {
  case Type::Integer:
    return checkInteger(parameter, given);
  case Type::Boolean:
    return toFlag(given, flag) ? kOk : kInvalidFormat;
  case Type::Word:
    return hasWord(parameter.words, toWord(parameter, given)) ? kOk : kInvalidEnumerated;
  case Type::Binary:
    return checkBinary(parameter, given);
  default:
    return checkText(parameter, given);
  }
}

Json plainToJson(const Parameter &parameter, const json_t *given)
{
  std::int64_t number = 0;
  bool flag = false;
  std::string text;
  switch (parameter.type) {
  case Type::Integer:
    toInteger(given, number);
    return Json(json_integer(number));
  case Type::Boolean:
    toFlag(given, flag);
    return Json(json_boolean(flag));
  case Type::Word:
    text = toWord(parameter, given);
    break;
  default:
    text = parameter.is(kSecret) ? hashPassword(textOf(given)) : std::string(textOf(given));
  }
  return Json(json_stringn(text.data(), text.size()));
}

Json toJson(const Parameter &parameter, const json_t *given, const json_t *present);

// The members of `given` in the place of those of `present`.
Json mergeMembers(const Parameter &parameter, const json_t *given, const json_t *present)
{
  Json merged(json_is_object(present) ? json_copy(const_cast<json_t *>(present)) : json_object());
  const char *name;
  json_t *value;
  json_object_foreach(const_cast<json_t *>(given), name, value)
  {
    if (const Parameter *member = findMember(parameter, name))
      json_object_set_new(merged.get(), name,
                          toJson(*member, value, json_object_get(present, name)).release());
  }
  return merged;
}

Json toJson(const Parameter &parameter, const json_t *given, const json_t *present)
{
  if (parameter.type == Type::Object)
    return mergeMembers(parameter, given, present);
  if (parameter.type != Type::List)
    return plainToJson(parameter, given);
  Json list(json_array());
  for (std::size_t i = 0; i < json_array_size(given); ++i)
    json_array_append_new(list.get(), mergeMembers(parameter, json_array_get(given, i), nullptr).release());
  return list;
}

} // namespace

void validate(const Parameter &parameter, const json_t *given, std::vector<Problem> &problems)
{
  if (parameter.is(kReadOnly) || parameter.is(kComputed)) {
    problems.emplace_back(kInvalidParameter, parameter.name);
    return;
  }
  if (parameter.type == Type::Object) {
    validateMembers(parameter, given, problems);
  } else if (parameter.type == Type::List) {
    validateList(parameter, given, problems);
  } else if (Errno number = checkPlain(parameter, given); number != kOk) {
    problems.emplace_back(number, parameter.name);
  }
}

Value toValue(const Parameter &parameter, const json_t *given, const Value &present)
{
  if (parameter.type == Type::Object || parameter.type == Type::List) {
    Json before(json_loadb(present.text().data(), present.text().size(), 0, nullptr));
    return Value::nested(toJson(parameter, given, before.get()).get());
  }
  Json json = plainToJson(parameter, given);
  if (json_is_integer(json.get()))
    return Value::integer(json_integer_value(json.get()));
  if (json_is_boolean(json.get()))
    return Value::boolean(json_is_true(json.get()));
  return Value::text(textOf(json.get()));
}

} // namespace zelsim
