// SPDX-License-Identifier: MIT
#include <Wt/WObject>
#include <algorithm>
#include <atomic>

namespace Wt
{

struct WObject::Rare {
  explicit Rare(WObject *owner) : destroyed(owner) {}
  std::string name;
  Signal<WObject *> destroyed;
};

namespace
{

std::uint64_t nextNumber()
{
  static std::atomic<std::uint64_t> counter{0};
  return counter.fetch_add(1, std::memory_order_relaxed);
}

std::string base36(std::uint64_t number)
{
  std::string digits;
  do {
    digits += "0123456789abcdefghijklmnopqrstuvwxyz"[number % 36];
    number /= 36;
  } while (number);
  std::reverse(digits.begin(), digits.end());
  return digits;
}

} // namespace

WObject::WObject(WObject *parent) : number_(nextNumber())
{
  if (parent)
    parent->addChild(this);
}

WObject::~WObject()
{
  if (rare_)
    rare_->destroyed.emit(this);
  deleteChildren();
  if (parent_)
    parent_->removeChild(this);
}

void WObject::deleteChildren()
{
  if (!children_)
    return;
  // Oldest first; a child's destructor may delete or move its siblings.
  std::reverse(children_->begin(), children_->end());
  while (!children_->empty()) {
    WObject *child = children_->back();
    children_->pop_back();
    child->parent_ = nullptr;
    delete child;
  }
}

void WObject::addChild(WObject *child)
{
  if (!child || child == this || child->parent_ == this)
    return;
  if (child->parent_)
    child->parent_->removeChild(child);
  if (!children_)
    children_ = std::make_unique<std::vector<WObject *>>();
  children_->push_back(child);
  child->parent_ = this;
}

void WObject::removeChild(WObject *child)
{
  if (!child || child->parent_ != this)
    return;
  // The youngest are the likeliest to leave.
  auto found = std::find(children_->rbegin(), children_->rend(), child);
  if (found != children_->rend())
    children_->erase(std::next(found).base());
  child->parent_ = nullptr;
}

const std::vector<WObject *> &WObject::children() const
{
  static const std::vector<WObject *> none;
  return children_ ? *children_ : none;
}

const std::string WObject::id() const
{
  const std::string own = "o" + base36(number_);
  return rare_ && !rare_->name.empty() ? rare_->name + "_" + own : own;
}

WObject::Rare &WObject::rare()
{
  if (!rare_)
    rare_ = std::make_unique<Rare>(this);
  return *rare_;
}

void WObject::setObjectName(const std::string &name)
{
  rare().name = name;
}

std::string WObject::objectName() const
{
  return rare_ ? rare_->name : std::string();
}

Signal<WObject *> &WObject::destroyed()
{
  return rare().destroyed;
}

void WObject::signalConnectionsChanged() {}

} // namespace Wt
