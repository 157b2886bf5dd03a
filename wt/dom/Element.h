// SPDX-License-Identifier: MIT
#ifndef WT_DOM_ELEMENT_H_
#define WT_DOM_ELEMENT_H_

#include "dom/Owner.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Wt
{
namespace Dom
{

class Document;

/**
 * The server's mirror of one element of the page: always what the browser was told, or is about to be.
 *
 * All setters are idempotent: a value that the browser already has costs nothing, and a differing one
 * becomes an operation of the next update. A widget therefore renders by setting everything that it wants
 * to be so, at creation and at each change alike.
 *
 * A setting has a key, whose first character tells the browser what it is:
 *   "class"   an attribute
 *   "*width"  a style property
 *   ".value"  a script property of the element
 *   "@click"  a listener; the value holds its flags: 'p' prevent the default action, 's' stop propagation
 *   "!split"  a behaviour of the browser's runtime; the value is its configuration, a JSON text
 *   "#"       the element's text, in place of children
 *   "<"       the element's rich text, in place of children; the value is made by RichContent
 * Keys must be literals or come from Document::intern, since only the pointer is kept.
 *
 * Elements are made by Document::create, belong to their parent element once they are among its children,
 * and to the document until then. The parent destroys its children.
 */
class Element
{
public:
  using Id = std::uint32_t;

  Element(const Element &) = delete;
  Element &operator=(const Element &) = delete;

  Id id() const { return id_; }
  const char *tag() const { return tag_; }
  Document &document() const { return document_; }
  Element *parent() const { return parent_; }
  const std::vector<Element *> &children() const { return children_; }

  Owner *owner() const { return owner_; }
  void setOwner(Owner *owner) { owner_ = owner; }

  /// True when the browser has the element, or will get it with the next update.
  bool attached() const { return attached_; }

  /// Gives the setting `key` the text `value`.
  void set(const char *key, std::string_view value);

  /// Takes the setting away. Nothing happens if there is none.
  void unset(const char *key);

  /// set() if `wanted`, else unset().
  void setIf(bool wanted, const char *key, std::string_view value);

  /// The present text of a setting, or null.
  const std::string *get(const char *key) const;

  /// Notes that the browser itself has changed a setting: nothing is sent.
  void assume(const char *key, std::string_view value);

  /// Makes `children` the children, in this order. Those not yet under this element are taken over from the
  /// document or from their present parent; former children that are not named go back to the document,
  /// which destroys them with the next update unless another element has taken them.
  void setChildren(const std::vector<Element *> &children);

  /// Sends a one-time command to the browser's element: `method` with `arguments`, the inside of a JSON array
  /// (for example: "1,\"top\""). An element that is not in the page yet gets it right after it came there
  /// with the next update; if it does not, the command is dropped.
  void call(const char *method, std::string_view arguments = std::string_view());

private:
  friend class Document;

  struct Setting {
    const char *key;
    std::string value;
  };

  Element(Document &document, Id id, const char *tag, Owner *owner);
  ~Element();

  Setting *find(const char *key);
  void setAttached(bool attached);
  void serialize(std::string &out) const;
  void detachChild(Element *child);
  bool standsBefore(const Element *child, Id before) const;
  void insert(Element *child, Id before);
  void tellPlace(Element &child, Id before);

  Document &document_;
  const char *tag_;
  Owner *owner_;
  Element *parent_ = nullptr;
  std::vector<Setting> settings_;
  std::vector<Element *> children_;
  Id id_;
  bool attached_ = false;
};

} // namespace Dom
} // namespace Wt

#endif // WT_DOM_ELEMENT_H_
