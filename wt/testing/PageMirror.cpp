// SPDX-License-Identifier: MIT
#include "testing/PageMirror.h"

#include <algorithm>
#include <jansson.h>
#include <sstream>
#include <stdexcept>

namespace Wt
{
namespace Testing
{

namespace
{

[[noreturn]] void fail(const std::string &what, json_t *operation)
{
  char *text = json_dumps(operation, JSON_COMPACT | JSON_ENCODE_ANY);
  const std::string shown = text ? text : "?";
  std::free(text);
  throw std::runtime_error("the page cannot " + what + ": " + shown);
}

std::string stringOf(json_t *value)
{
  return json_is_string(value) ? std::string(json_string_value(value), json_string_length(value))
                               : std::string();
}

std::uint32_t idOf(json_t *value)
{
  return static_cast<std::uint32_t>(json_integer_value(value));
}

std::string richText(json_t *content)
{
  std::string text;
  std::size_t i;
  json_t *part;
  json_array_foreach(content, i, part)
  {
    if (json_is_string(part)) {
      text += stringOf(part);
    } else if (json_is_array(part) && json_array_size(part) >= 2) {
      if (stringOf(json_array_get(part, 0)) == "br")
        text += '\n';
      json_t *rest = json_array();
      for (std::size_t k = 2; k < json_array_size(part); ++k)
        json_array_append(rest, json_array_get(part, k));
      text += richText(rest);
      json_decref(rest);
    }
  }
  return text;
}

} // namespace

std::string Node::get(const std::string &key) const
{
  const auto found = settings.find(key);
  return found == settings.end() ? std::string() : found->second;
}

bool Node::hasClass(const std::string &name) const
{
  std::istringstream words(get("class"));
  for (std::string word; words >> word;)
    if (word == name)
      return true;
  return false;
}

bool Node::visible() const
{
  for (const Node *n = this; n; n = n->parent)
    if (n->has("hidden"))
      return false;
  return true;
}

std::string Node::allText() const
{
  std::string all = text;
  for (const Node *child : children) {
    const std::string below = child->allText();
    if (!all.empty() && !below.empty())
      all += ' ';
    all += below;
  }
  return all;
}

PageMirror::PageMirror()
{
  auto body = std::make_unique<Node>();
  body->id = 1;
  body->tag = "body";
  nodes_.emplace(1, std::move(body));
}

Node *PageMirror::find(std::uint32_t id) const
{
  const auto found = nodes_.find(id);
  return found == nodes_.end() ? nullptr : found->second.get();
}

void PageMirror::apply(json_t *operations)
{
  std::size_t i;
  json_t *operation;
  json_array_foreach(operations, i, operation) applyOne(operation);
  for (auto &[id, node] : nodes_)
    if (node->get("class") == "Wt-tv-contents")
      numberRows(*node);
}

/// The rows of a list stand below each other from the first one's number, as the setting ".row" of each.
void PageMirror::numberRows(Node &contents)
{
  int number = static_cast<int>(std::strtol(contents.get(".first").c_str(), nullptr, 10));
  for (Node *row : contents.children)
    row->settings[".row"] = std::to_string(number++);
}

void PageMirror::applyOne(json_t *operation)
{
  const std::string code = stringOf(json_array_get(operation, 0));
  json_t *second = json_array_get(operation, 1);
  if (code == "c") {
    insert(node(second), idOf(json_array_get(operation, 2)), make(json_array_get(operation, 3)));
  } else if (code == "s") {
    set(node(second), json_array_get(operation, 2));
  } else if (code == "m") {
    Node &moved = node(second);
    detach(moved);
    insert(node(json_array_get(operation, 2)), idOf(json_array_get(operation, 3)), &moved);
  } else if (code == "r") {
    Node &gone = node(second);
    detach(gone);
    destroy(gone);
  } else if (code == "x") {
    call(operation);
  } else if (code == "d") {
    command(operation);
  } else {
    fail("understand", operation);
  }
}

Node &PageMirror::node(json_t *id)
{
  Node *found = json_is_integer(id) ? find(idOf(id)) : nullptr;
  if (!found)
    fail("find the element", id);
  return *found;
}

Node *PageMirror::make(json_t *tree)
{
  const std::uint32_t id = idOf(json_array_get(tree, 0));
  if (!json_is_array(tree) || json_array_size(tree) < 3 || id == 0 || find(id))
    fail("make", tree);
  auto made = std::make_unique<Node>();
  Node *result = made.get();
  result->id = id;
  result->tag = stringOf(json_array_get(tree, 1));
  nodes_.emplace(id, std::move(made));
  set(*result, json_array_get(tree, 2));
  for (std::size_t i = 3; i < json_array_size(tree); ++i)
    insert(*result, 0, make(json_array_get(tree, i)));
  return result;
}

void PageMirror::insert(Node &parent, std::uint32_t before, Node *child)
{
  const auto at = before == 0 ? parent.children.end()
                              : std::find_if(parent.children.begin(), parent.children.end(),
                                             [before](const Node *n) { return n->id == before; });
  if (before != 0 && at == parent.children.end())
    throw std::runtime_error("the page has no element " + std::to_string(before) + " below " +
                             std::to_string(parent.id));
  parent.children.insert(at, child);
  child->parent = &parent;
}

void PageMirror::detach(Node &child)
{
  if (!child.parent)
    throw std::runtime_error("the page's body cannot be moved");
  auto &siblings = child.parent->children;
  siblings.erase(std::find(siblings.begin(), siblings.end(), &child));
  child.parent = nullptr;
}

void PageMirror::destroy(Node &gone)
{
  for (Node *child : gone.children)
    destroy(*child);
  if (focus == gone.id)
    focus = 0;
  nodes_.erase(gone.id);
}

void PageMirror::set(Node &target, json_t *settings)
{
  const char *key;
  json_t *value;
  json_object_foreach(settings, key, value)
  {
    const std::string name = key;
    if (json_is_null(value))
      target.settings.erase(name);
    else
      target.settings[name] = stringOf(value);
    if (name == "#") {
      target.text = stringOf(value);
    } else if (name == "<") {
      json_t *content = json_loads(stringOf(value).c_str(), 0, nullptr);
      if (!json_is_null(value) && !content)
        fail("read the rich text", value);
      target.text = richText(content);
      json_decref(content);
    }
  }
}

void PageMirror::call(json_t *operation)
{
  Node &target = node(json_array_get(operation, 1));
  const std::string method = stringOf(json_array_get(operation, 2));
  if (method == "focus")
    focus = target.id;
  else if (method == "blur" && focus == target.id)
    focus = 0;
  json_t *arguments = json_array();
  for (std::size_t i = 3; i < json_array_size(operation); ++i)
    json_array_append(arguments, json_array_get(operation, i));
  char *text = json_dumps(arguments, JSON_COMPACT);
  calls.push_back(std::to_string(target.id) + ' ' + method + ' ' + text);
  std::free(text);
  json_decref(arguments);
}

void PageMirror::command(json_t *operation)
{
  const std::string name = stringOf(json_array_get(operation, 1));
  const std::string argument = stringOf(json_array_get(operation, 2));
  if (name == "title")
    title = argument;
  else if (name == "redirect")
    redirected = argument;
  else if (name == "style")
    styleSheets.push_back(argument);
  else if (name != "htmlClass" && name != "lang" && name != "texts")
    fail("obey", operation);
}

void PageMirror::collect(const Node &from, const std::function<bool(const Node &)> &fits,
                         std::vector<Node *> &found) const
{
  if (fits(from))
    found.push_back(const_cast<Node *>(&from));
  for (const Node *child : from.children)
    collect(*child, fits, found);
}

std::vector<Node *> PageMirror::findAll(const std::function<bool(const Node &)> &fits) const
{
  std::vector<Node *> found;
  collect(body(), fits, found);
  return found;
}

Node *PageMirror::findIf(const std::function<bool(const Node &)> &fits) const
{
  const std::vector<Node *> found = findAll(fits);
  return found.empty() ? nullptr : found.front();
}

std::string PageMirror::dump(const Node *from) const
{
  std::string out;
  dumpNode(from ? *from : body(), 0, out);
  return out;
}

void PageMirror::dumpNode(const Node &from, std::size_t depth, std::string &out) const
{
  out += std::string(2 * depth, ' ') + from.tag;
  for (const auto &setting : from.settings) {
    if (setting.first == "#" || setting.first == "<")
      continue;
    out += ' ' + setting.first;
    if (!setting.second.empty())
      out += "=\"" + setting.second + '"';
  }
  if (!from.text.empty())
    out += ": " + from.text;
  out += '\n';
  for (const Node *child : from.children)
    dumpNode(*child, depth + 1, out);
}

} // namespace Testing
} // namespace Wt
