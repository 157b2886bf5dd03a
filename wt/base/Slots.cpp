// SPDX-License-Identifier: MIT
#include "base/Slots.h"

#include <Wt/WObject>

namespace Wt
{
namespace Signals
{
namespace Impl
{

void Track::attach(trackable &object)
{
  next = object.tracks_;
  link = &object.tracks_;
  if (next)
    next->link = &next;
  object.tracks_ = this;
}

void Track::detach()
{
  if (!link)
    return;
  *link = next;
  if (next)
    next->link = link;
  link = nullptr;
  next = nullptr;
}

Slot::~Slot()
{
  untrack();
}

void Slot::disconnect()
{
  if (list_)
    list_->remove(this);
}

void Slot::track(const trackable *object)
{
  if (!object)
    return;
  Track *place = &track_;
  if (place->link) {
    auto fresh = std::make_unique<Track>();
    fresh->more = std::move(track_.more);
    place = fresh.get();
    track_.more = std::move(fresh);
  }
  place->slot = this;
  place->attach(const_cast<trackable &>(*object));
}

void Slot::untrack()
{
  for (Track *track = &track_; track; track = track->more.get())
    track->detach();
}

void Slot::release()
{
  if (--references_ == 0)
    delete this;
}

void SlotList::push(Slot *slot)
{
  slot->list_ = this;
  slot->next_ = first_;
  if (first_)
    first_->previous_ = slot;
  first_ = slot;
  if (++connected_ == 1)
    notify();
}

void SlotList::remove(Slot *slot)
{
  // Letting go of a slot may run anything, even what destroys the signal; so act as an emission does.
  ++emitting_;
  slot->list_ = nullptr;
  slot->untrack();
  stale_ = true;
  if (--connected_ == 0)
    notify();
  leave();
}

void SlotList::unlink(Slot *slot)
{
  (slot->previous_ ? slot->previous_->next_ : first_) = slot->next_;
  if (slot->next_)
    slot->next_->previous_ = slot->previous_;
  slot->next_ = slot->previous_ = nullptr;
  slot->release();
}

void SlotList::signalDied()
{
  signalAlive_ = false;
  sender_ = nullptr;
  // Keeps the list while its slots let go of what they hold.
  ++emitting_;
  for (Slot *slot = first_; slot; slot = slot->next_)
    slot->disconnect();
  leave();
}

void SlotList::sweep()
{
  // Nothing else unlinks meanwhile; a slot that goes may disconnect others, which asks for another round.
  while (stale_) {
    stale_ = false;
    for (Slot *slot = first_; slot;) {
      Slot *following = slot->next_;
      if (!slot->connected())
        unlink(slot);
      slot = following;
    }
  }
}

void SlotList::leave()
{
  if (emitting_ > 1) {
    --emitting_;
    return;
  }
  sweep();
  --emitting_;
  if (!signalAlive_)
    delete this;
}

void SlotList::notify()
{
  if (sender_)
    sender_->signalConnectionsChanged();
}

SlotList::Emission::Emission(SlotList &list) : list_(list), following_(list.first_)
{
  ++list_.emitting_;
}

SlotList::Emission::~Emission()
{
  list_.leave();
}

Slot *SlotList::Emission::next()
{
  while (following_ && !following_->connected())
    following_ = following_->next_;
  Slot *slot = following_;
  if (slot)
    following_ = slot->next_;
  return slot;
}

} // namespace Impl

trackable::~trackable()
{
  while (tracks_) {
    Impl::Slot *slot = tracks_->slot;
    if (slot->connected())
      slot->disconnect();
    else
      tracks_->detach();
  }
}

connection::connection(Impl::Slot *slot) : slot_(slot)
{
  if (slot_)
    slot_->retain();
}

connection::connection(const connection &other) : slot_(other.slot_)
{
  if (slot_)
    slot_->retain();
}

connection::~connection()
{
  if (slot_)
    slot_->release();
}

void connection::disconnect() const
{
  if (slot_)
    slot_->disconnect();
}

} // namespace Signals
} // namespace Wt
