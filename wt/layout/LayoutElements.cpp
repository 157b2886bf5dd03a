// SPDX-License-Identifier: MIT
#include "layout/LayoutElements.h"

#include "dom/Document.h"

namespace Wt
{
namespace Engine
{

LayoutElements::~LayoutElements()
{
  for (auto &entry : elements_)
    entry.second->setOwner(nullptr);
}

Dom::Element &LayoutElements::get(Dom::Document &document, const void *item, Role role)
{
  Dom::Element *&element = elements_[Key{item, role}];
  if (!element)
    element = document.create("div", this);
  return *element;
}

void LayoutElements::forget(const void *item)
{
  for (const Role role : {Box, Place, Handle, Gap}) {
    const auto found = elements_.find(Key{item, role});
    if (found != elements_.end())
      found->second->document().destroy(found->second);
  }
}

void LayoutElements::domGone(Dom::Element &gone) noexcept
{
  for (auto entry = elements_.begin(); entry != elements_.end(); ++entry) {
    if (entry->second == &gone) {
      elements_.erase(entry);
      return;
    }
  }
}

} // namespace Engine
} // namespace Wt
