// SPDX-License-Identifier: MIT
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/RichText.h"
#include "base/RichTextPolicy.h"

using Wt::Engine::RichNode;
using Wt::Engine::RichText;

namespace {

void check(const std::vector<RichNode> &nodes)
{
  for (const RichNode &node : nodes) {
    if (!node.isText() && !Wt::Engine::isAllowedElement(node.tag))
      std::abort();
    for (const auto &[name, value] : node.attributes)
      if (!Wt::Engine::isAllowedAttribute(name, value, RichText::Trust::None) || name.compare(0, 2, "on") == 0)
        std::abort();
    check(node.children);
  }
}

} // namespace

/// Whatever comes in: only harmless nodes come out, and their markup reads back as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  const auto text = RichText::parse(std::string(reinterpret_cast<const char *>(data), size));
  if (!text)
    return 0;
  check(text->nodes());
  const std::string markup = text->markup();
  const auto again = RichText::parse(markup);
  if (markup.size() < 400000 && (!again || again->markup() != markup))
    std::abort();
  return 0;
}
