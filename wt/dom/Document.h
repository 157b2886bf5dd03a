// SPDX-License-Identifier: MIT
#ifndef WT_DOM_DOCUMENT_H_
#define WT_DOM_DOCUMENT_H_

#include "dom/Element.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace Wt
{
namespace Dom
{

/**
 * The mirror of a session's page, and the writer of what the browser must do to follow it.
 *
 * Operations, as the elements of a JSON array, are gathered until take():
 *   ["c", parent, before, tree]  make a tree as a child of `parent`, before the element `before` (0: at the
 * end); tree: [id, tag, {settings}, child...]
 *   ["s", id, {key: value}]      change settings; null takes one away
 *   ["m", id, parent, before]    move
 *   ["r", id]                    remove
 *   ["x", id, method, args...]   call a command of the runtime on an element
 *   ["d", command, args...]      a command to the page: "title", "style", "redirect", ...
 * Element 1 is the page's body, which the browser has from the start.
 */
class Document
{
public:
  Document();
  ~Document();
  Document(const Document &) = delete;
  Document &operator=(const Document &) = delete;

  /// The page's body.
  Element &body() { return *body_; }

  /// A new element outside the page. `tag` must be a literal or interned.
  Element *create(const char *tag, Owner *owner = nullptr);

  /// Destroys an element and all below it, and removes it from the page.
  void destroy(Element *element);

  /// The element of that number, or null: what a browser says need not be true.
  Element *find(Element::Id id) const;

  /// A copy of `text` that lives as long as the document and can serve as a key or tag. Equal texts give
  /// equal pointers. For names that are not literals; bounded by what the application itself makes up.
  const char *intern(std::string_view text);

  /// Sends a command to the page; `arguments` is the inside of a JSON array.
  void command(const char *name, std::string_view arguments = std::string_view());

  /// True when take() would have something to say.
  bool hasOperations() const { return !operations_.empty() || !orphans_.empty(); }

  /// The operations gathered since the last call, as a JSON array, or an empty text if there are none.
  /// Elements outside the page are destroyed.
  std::string take();

private:
  friend class Element;

  std::string &operation(const char *code, Element::Id id);
  void settingChanged(Element &element, const char *key, const std::string *value);
  void closeSettings();
  void makeLateCalls();
  void adopt(Element *element);

  std::unordered_map<Element::Id, Element *> elements_;
  std::unordered_set<Element *> orphans_;
  std::unordered_set<std::string> names_;
  std::vector<std::pair<Element::Id, std::string>> lateCalls_; ///< of elements that were not in the page yet
  std::string operations_;
  Element::Id nextId_ = 1;
  Element::Id openSettings_ = 0;
  Element *body_;
};

} // namespace Dom
} // namespace Wt

#endif // WT_DOM_DOCUMENT_H_
