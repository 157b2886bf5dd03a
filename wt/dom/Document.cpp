// SPDX-License-Identifier: MIT
#include "dom/Document.h"

#include "dom/JsonText.h"

namespace Wt
{
namespace Dom
{

Document::Document()
{
  body_ = create("body");
  orphans_.erase(body_);
  body_->attached_ = true;
}

Document::~Document()
{
  while (!orphans_.empty())
    destroy(*orphans_.begin());
  destroy(body_);
}

Element *Document::create(const char *tag, Owner *owner)
{
  Element *element = new Element(*this, nextId_++, tag, owner);
  elements_.emplace(element->id_, element);
  orphans_.insert(element);
  return element;
}

void Document::destroy(Element *element)
{
  if (element->attached_ && element != body_) {
    std::string &out = operation("r", element->id_);
    out += ']';
    element->setAttached(false);
  }
  if (element->parent_)
    element->parent_->detachChild(element);
  else
    orphans_.erase(element);
  while (!element->children_.empty())
    destroy(element->children_.back());
  elements_.erase(element->id_);
  delete element;
}

Element *Document::find(Element::Id id) const
{
  const auto found = elements_.find(id);
  return found == elements_.end() ? nullptr : found->second;
}

const char *Document::intern(std::string_view text)
{
  return names_.emplace(text).first->c_str();
}

void Document::adopt(Element *element)
{
  orphans_.insert(element);
}

std::string &Document::operation(const char *code, Element::Id id)
{
  closeSettings();
  operations_ += operations_.empty() ? "[[\"" : ",[\"";
  operations_ += code;
  operations_ += "\",";
  appendJsonNumber(operations_, id);
  return operations_;
}

void Document::settingChanged(Element &element, const char *key, const std::string *value)
{
  if (openSettings_ != element.id_) {
    operation("s", element.id_) += ",{";
    openSettings_ = element.id_;
  } else {
    operations_ += ',';
  }
  appendJsonString(operations_, key);
  operations_ += ':';
  if (value)
    appendJsonString(operations_, *value);
  else
    operations_ += "null";
}

void Document::closeSettings()
{
  if (openSettings_ != 0) {
    operations_ += "}]";
    openSettings_ = 0;
  }
}

void Document::command(const char *name, std::string_view arguments)
{
  closeSettings();
  operations_ += operations_.empty() ? "[[\"d\"," : ",[\"d\",";
  appendJsonString(operations_, name);
  if (!arguments.empty()) {
    operations_ += ',';
    operations_ += arguments;
  }
  operations_ += ']';
}

void Document::makeLateCalls()
{
  for (const auto &call : lateCalls_) {
    const Element *element = find(call.first);
    if (element && element->attached())
      operation("x", call.first) += call.second;
  }
  lateCalls_.clear();
}

std::string Document::take()
{
  while (!orphans_.empty())
    destroy(*orphans_.begin());
  makeLateCalls();
  closeSettings();
  if (!operations_.empty())
    operations_ += ']';
  std::string taken;
  taken.swap(operations_);
  return taken;
}

} // namespace Dom
} // namespace Wt
