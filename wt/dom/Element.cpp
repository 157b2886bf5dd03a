// SPDX-License-Identifier: MIT
#include "dom/Element.h"

#include "dom/Document.h"
#include "dom/JsonText.h"

#include <algorithm>
#include <cstring>

namespace Wt
{
namespace Dom
{

Element::Element(Document &document, Id id, const char *tag, Owner *owner)
    : document_(document), tag_(tag), owner_(owner), id_(id)
{
}

Element::~Element()
{
  if (owner_)
    owner_->domGone(*this);
}

Element::Setting *Element::find(const char *key)
{
  for (Setting &s : settings_)
    if (s.key == key || std::strcmp(s.key, key) == 0)
      return &s;
  return nullptr;
}

const std::string *Element::get(const char *key) const
{
  const Setting *s = const_cast<Element *>(this)->find(key);
  return s ? &s->value : nullptr;
}

void Element::set(const char *key, std::string_view value)
{
  Setting *s = find(key);
  if (s && s->value == value)
    return;
  if (s) {
    s->value.assign(value);
  } else {
    settings_.push_back(Setting{key, std::string(value)});
    s = &settings_.back();
  }
  if (attached_)
    document_.settingChanged(*this, s->key, &s->value);
}

void Element::unset(const char *key)
{
  Setting *s = find(key);
  if (!s)
    return;
  key = s->key;
  settings_.erase(settings_.begin() + (s - settings_.data()));
  if (attached_)
    document_.settingChanged(*this, key, nullptr);
}

void Element::setIf(bool wanted, const char *key, std::string_view value)
{
  if (wanted)
    set(key, value);
  else
    unset(key);
}

void Element::assume(const char *key, std::string_view value)
{
  if (Setting *s = find(key))
    s->value.assign(value);
  else
    settings_.push_back(Setting{key, std::string(value)});
}

void Element::detachChild(Element *child)
{
  children_.erase(std::find(children_.begin(), children_.end(), child));
  child->parent_ = nullptr;
}

void Element::setChildren(const std::vector<Element *> &children)
{
  if (children == children_)
    return;
  for (std::size_t i = children_.size(); i-- > 0;) {
    Element *child = children_[i];
    if (std::find(children.begin(), children.end(), child) == children.end()) {
      detachChild(child);
      document_.adopt(child);
    }
  }
  // What remains of the old children keeps its order wherever it can: walking from the end, only an element
  // that does not already stand before its successor is inserted or moved.
  Id before = 0;
  for (std::size_t i = children.size(); i-- > 0;) {
    Element *child = children[i];
    if (!standsBefore(child, before))
      insert(child, before);
    before = child->id_;
  }
}

/// True if the child is followed by the child of that number, or is the last one if that is 0.
bool Element::standsBefore(const Element *child, Id before) const
{
  if (child->parent_ != this)
    return false;
  const auto next = std::find(children_.begin(), children_.end(), child) + 1;
  return before == 0 ? next == children_.end() : next != children_.end() && (*next)->id_ == before;
}

/// Takes the element from where it is and puts it before the child of that number, or at the end if that is
/// 0.
void Element::insert(Element *child, Id before)
{
  if (child->parent_)
    child->parent_->detachChild(child);
  else
    document_.orphans_.erase(child);
  const auto successor = std::find_if(children_.begin(), children_.end(),
                                      [before](const Element *e) { return e->id_ == before; });
  children_.insert(successor, child);
  child->parent_ = this;
  tellPlace(*child, before);
}

void Element::tellPlace(Element &child, Id before)
{
  if (attached_ && child.attached_) {
    std::string &out = document_.operation("m", child.id_);
    out += ',';
    appendJsonNumber(out, id_);
    out += ',';
    appendJsonNumber(out, before);
    out += ']';
  } else if (attached_) {
    std::string &out = document_.operation("c", id_);
    out += ',';
    appendJsonNumber(out, before);
    out += ',';
    child.setAttached(true);
    child.serialize(out);
    out += ']';
  } else if (child.attached_) {
    // Taken out of the page into a tree that is not in it yet: the browser gets it anew with that tree.
    std::string &out = document_.operation("r", child.id_);
    out += ']';
    child.setAttached(false);
  }
}

void Element::call(const char *method, std::string_view arguments)
{
  std::string call = ",";
  appendJsonString(call, method);
  if (!arguments.empty()) {
    call += ',';
    call += arguments;
  }
  call += ']';
  if (attached_)
    document_.operation("x", id_) += call;
  else
    document_.lateCalls_.emplace_back(id_, std::move(call));
}

void Element::setAttached(bool attached)
{
  attached_ = attached;
  for (Element *child : children_)
    child->setAttached(attached);
}

void Element::serialize(std::string &out) const
{
  out += '[';
  appendJsonNumber(out, id_);
  out += ',';
  appendJsonString(out, tag_);
  out += ",{";
  bool first = true;
  for (const Setting &s : settings_) {
    if (!first)
      out += ',';
    first = false;
    appendJsonString(out, s.key);
    out += ':';
    appendJsonString(out, s.value);
  }
  out += '}';
  for (const Element *child : children_) {
    out += ',';
    child->serialize(out);
  }
  out += ']';
}

} // namespace Dom
} // namespace Wt
