// SPDX-License-Identifier: MIT
#ifndef WT_DOM_OWNER_H_
#define WT_DOM_OWNER_H_

#include <string>

namespace Wt
{

class WWebWidget;

namespace Engine
{
struct RawEvent;
}

namespace Dom
{

class Document;
class Element;

/// What an element stands for: it hears what the browser reports of the element.
class Owner
{
public:
  /// The browser reports an event on `at`, which the owner listens to.
  virtual void domEvent(Element &at, const Engine::RawEvent &event) = 0;

  /// The browser reports what the form element `at` now holds. An owner that accepts it notes it with
  /// Element::assume; one that does not sets what it wants to be shown.
  virtual void domValue(Element &at, const std::string &value) = 0;

  /// `gone` is being destroyed; the owner must forget it.
  virtual void domGone(Element &gone) noexcept = 0;

  /// The widget that the owner is, or null: layouts own elements too.
  virtual WWebWidget *ownerWidget() noexcept { return nullptr; }

protected:
  ~Owner() = default;
};

} // namespace Dom
} // namespace Wt

#endif // WT_DOM_OWNER_H_
