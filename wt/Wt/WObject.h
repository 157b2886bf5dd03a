// SPDX-License-Identifier: MIT
#ifndef WT_WOBJECT_H_
#define WT_WOBJECT_H_

#include "../base/SignalForward.h"
#include "../base/Slots.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Wt
{

/// Base of objects that own each other in trees and receive signals. A parent deletes its children; a child
/// that is deleted first leaves its parent.
class WObject : public Signals::trackable
{
public:
  typedef void (WObject::*Method)();

  explicit WObject(WObject *parent = nullptr);
  WObject(const WObject &) = delete;
  WObject &operator=(const WObject &) = delete;
  virtual ~WObject();

  /// Takes the child over from its former parent.
  void addChild(WObject *child);
  /// Detaches the child, which the caller then owns.
  virtual void removeChild(WObject *child);
  const std::vector<WObject *> &children() const;
  WObject *parent() const { return parent_; }

  /// Unique in the process; begins with the object name, if there is one.
  /// Deviation: the page has an id attribute only for widgets with an object name, which saves much of its
  /// size; id() of the others names nothing there.
  virtual const std::string id() const;
  void setObjectName(const std::string &name);
  std::string objectName() const;

  /// Emitted when only the WObject part is left.
  Signal<WObject *> &destroyed();

protected:
  /// The first slot was connected to, or the last one left, one of the signals of which this is the sender.
  virtual void signalConnectionsChanged();

private:
  friend class Signals::Impl::SlotList;
  struct Rare;

  Rare &rare();
  void deleteChildren();

  WObject *parent_ = nullptr;
  std::unique_ptr<std::vector<WObject *>> children_;
  std::unique_ptr<Rare> rare_;
  std::uint64_t number_;
};

} // namespace Wt

#include "WSignal.h"

#endif // WT_WOBJECT_H_
