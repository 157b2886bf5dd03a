// SPDX-License-Identifier: MIT
#include "dom/RichContent.h"

#include "dom/JsonText.h"

#include <algorithm>

namespace Wt
{
namespace Dom
{

namespace
{

void appendNode(std::string &out, const Engine::RichNode &node)
{
  if (node.isText()) {
    appendJsonString(out, node.text);
    return;
  }
  out += '[';
  appendJsonString(out, node.tag);
  out += ",{";
  bool first = true;
  for (const auto &attribute : node.attributes) {
    if (!first)
      out += ',';
    first = false;
    appendJsonString(out, attribute.first);
    out += ':';
    appendJsonString(out, attribute.second);
  }
  out += '}';
  for (const Engine::RichNode &child : node.children) {
    out += ',';
    appendNode(out, child);
  }
  out += ']';
}

} // namespace

std::string richContent(const Engine::RichText &text)
{
  std::string content = "[";
  for (const Engine::RichNode &node : text.nodes()) {
    if (content.size() > 1)
      content += ',';
    appendNode(content, node);
  }
  return content + ']';
}

std::string plainContent(std::string_view text)
{
  std::string content = "[";
  for (std::size_t from = 0;;) {
    const std::size_t to = std::min(text.find('\n', from), text.size());
    if (to > from) {
      if (content.size() > 1)
        content += ',';
      appendJsonString(content, text.substr(from, to - from));
    }
    if (to == text.size())
      return content + ']';
    content += content.size() > 1 ? ",[\"br\",{}]" : "[\"br\",{}]";
    from = to + 1;
  }
}

} // namespace Dom
} // namespace Wt
