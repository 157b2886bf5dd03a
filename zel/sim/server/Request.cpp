// SPDX-License-Identifier: MIT
#include "server/Request.h"

#include "Frame.h"

namespace zelsim
{

namespace
{

struct MethodName {
  std::string_view name;
  Method method;
  MethodBit bit;
};

constexpr MethodName kMethodNames[] = {{"GET", Method::Get, kGet},
                                       {"SET", Method::Set, kSet},
                                       {"CREATE", Method::Create, kCreate},
                                       {"DELETE", Method::Delete, kDelete}};

const MethodName *findMethod(std::string_view name)
{
  for (const MethodName &known : kMethodNames)
    if (known.name == name)
      return &known;
  return nullptr;
}

bool isListOfTexts(const json_t *value)
{
  if (!json_is_array(value))
    return false;
  for (std::size_t i = 0; i < json_array_size(value); ++i)
    if (!json_is_string(json_array_get(value, i)))
      return false;
  return true;
}

// Follows "a/b" below a resource; false if there is no such nested object.
bool followPath(const Resource &resource, std::string_view rest, std::vector<const Parameter *> &path)
{
  while (!rest.empty()) {
    std::string_view name = rest.substr(0, rest.find('/'));
    rest.remove_prefix(std::min(rest.size(), name.size() + 1));
    const Parameter *next = nullptr;
    if (!path.empty())
      next = findMember(*path.back(), name);
    else if (int position = resource.position(name); position >= 0)
      next = &resource.parameters[position];
    if (!next || next->type != Type::Object)
      return false;
    path.push_back(next);
  }
  return true;
}

} // namespace

Problem Request::parse(std::string_view text)
{
  frame.reset(zelwire::parseJson(text));
  if (!json_is_object(frame.get()))
    return kInvalidSyntax;
  if (Problem problem = parseTarget())
    return problem;
  return parseSections();
}

Problem Request::parseTarget()
{
  const json_t *methodValue = json_object_get(frame.get(), "method");
  const json_t *resourceValue = json_object_get(frame.get(), "resource");
  if (!methodValue)
    return kMissingMethod;
  if (!json_is_string(methodValue) || (resourceValue && !json_is_string(resourceValue)))
    return kInvalidSyntax;
  const MethodName *known = findMethod(json_string_value(methodValue));
  if (!known)
    return kInvalidMethod;
  method = known->method;
  if (!resourceValue)
    return kMissingResource;
  std::string_view name = json_string_value(resourceValue);
  std::string_view first = name.substr(0, name.find('/'));
  resource = findResource(first);
  if (!resource || !followPath(*resource, name.substr(std::min(name.size(), first.size() + 1)), path))
    return kInvalidResource;
  bool nestedMethod = method == Method::Get || method == Method::Set;
  if (!(resource->methods & known->bit) || (!path.empty() && !nestedMethod))
    return kMethodNotSupported;
  return {};
}

Problem Request::parseSections()
{
  query = json_object_get(frame.get(), "query");
  select = json_object_get(frame.get(), "select");
  params = json_object_get(frame.get(), "params");
  if ((query && !json_is_object(query)) || (params && !json_is_object(params)) ||
      (select && !isListOfTexts(select)))
    return kInvalidSyntax;
  if (const char *tag = json_string_value(json_object_get(frame.get(), "have")))
    have = tag;
  return {};
}

} // namespace zelsim
