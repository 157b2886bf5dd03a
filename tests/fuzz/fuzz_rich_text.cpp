// SPDX-License-Identifier: MIT
// Rich text: what is left of it is harmless, and filtering it again leaves it as it is.
#include "base/RichText.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace
{

void check(const Wt::Engine::RichNode &node)
{
  if (node.tag == "script" || node.tag == "style" || node.tag == "iframe" || node.tag == "object")
    std::abort();
  for (const auto &[name, value] : node.attributes)
    if (name.compare(0, 2, "on") == 0)
      std::abort();
  for (const Wt::Engine::RichNode &child : node.children)
    check(child);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  const std::string markup(reinterpret_cast<const char *>(data), size);
  const auto text = Wt::Engine::RichText::parse(markup);
  if (!text)
    return 0;
  for (const Wt::Engine::RichNode &node : text->nodes())
    check(node);
  const auto again = Wt::Engine::RichText::parse(text->markup());
  if (!again || again->markup() != text->markup())
    std::abort();
  return 0;
}
