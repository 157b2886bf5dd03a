// SPDX-License-Identifier: MIT
#ifndef WT_LAYOUT_LAYOUT_ELEMENTS_H_
#define WT_LAYOUT_LAYOUT_ELEMENTS_H_

#include "dom/Owner.h"

#include <unordered_map>

namespace Wt
{

class WLayoutItem;

namespace Dom
{
class Document;
class Element;
} // namespace Dom

namespace Engine
{

/// The elements that a layout has on the page beside those of its widgets: cells, nested boxes, gaps and
/// handles. Each belongs to an item and has a role; it is made when first asked for.
class LayoutElements final : private Dom::Owner
{
public:
  enum Role {
    Box,   ///< a nested layout's element
    Place, ///< around an item that is placed in its cell
    Handle,
    Gap
  };

  ~LayoutElements();

  Dom::Element &get(Dom::Document &document, const void *item, Role role);

  /// Destroys the elements of an item that is no longer there.
  void forget(const void *item);

private:
  struct Key {
    const void *item;
    Role role;
    bool operator==(const Key &other) const { return item == other.item && role == other.role; }
  };
  struct Hash {
    std::size_t operator()(const Key &key) const { return std::hash<const void *>()(key.item) + key.role; }
  };

  void domEvent(Dom::Element &, const RawEvent &) override {}
  void domValue(Dom::Element &, const std::string &) override {}
  void domGone(Dom::Element &gone) noexcept override;

  std::unordered_map<Key, Dom::Element *, Hash> elements_;
};

} // namespace Engine
} // namespace Wt

#endif // WT_LAYOUT_LAYOUT_ELEMENTS_H_
