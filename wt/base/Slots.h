// SPDX-License-Identifier: MIT
#ifndef WT_BASE_SLOTS_H_
#define WT_BASE_SLOTS_H_

#include <boost/bind.hpp>
#include <boost/ref.hpp>
#include <boost/visit_each.hpp>
#include <cstddef>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>

/// The machinery under Signal, EventSignal and JSignal.
///
/// A signal owns a SlotList, made at the first connect(). The list owns its slots, newest first, and outlives
/// its signal while one of its slots runs. A slot that is disconnected meanwhile is marked only, and swept
/// when the outermost emission ends. Nothing here locks: a signal and its receivers belong to one session.

namespace Wt
{

class WObject;

namespace Signals
{

class trackable;

namespace Impl
{

class Slot;
class SlotList;

/// Links a slot into the list of one object that it refers to.
struct Track {
  Slot *slot = nullptr;
  Track *next = nullptr;
  Track **link = nullptr;
  std::unique_ptr<Track> more;

  void attach(trackable &object);
  void detach();
};

/// One connected receiver. Counted: the list and every connection object hold it.
class Slot
{
public:
  virtual ~Slot();
  Slot(const Slot &) = delete;
  Slot &operator=(const Slot &) = delete;

  bool connected() const { return list_ != nullptr; }
  void disconnect();
  void track(const trackable *object);
  void retain() { ++references_; }
  void release();

protected:
  Slot() = default;

private:
  friend class SlotList;

  void untrack();

  SlotList *list_ = nullptr;
  Slot *next_ = nullptr;
  Slot *previous_ = nullptr;
  Track track_;
  unsigned references_ = 1;
};

/// The slots of one signal.
class SlotList
{
public:
  /// `sender` hears when the list gets its first or loses its last slot; may be null.
  explicit SlotList(WObject *sender) : sender_(sender) {}
  SlotList(const SlotList &) = delete;
  SlotList &operator=(const SlotList &) = delete;

  void push(Slot *slot);
  void remove(Slot *slot);
  bool empty() const { return connected_ == 0; }
  void signalDied();

  /// Walks the slots that were connected when it began and are still, newest first.
  class Emission
  {
  public:
    explicit Emission(SlotList &list);
    ~Emission();
    Emission(const Emission &) = delete;
    Emission &operator=(const Emission &) = delete;
    Slot *next();

  private:
    SlotList &list_;
    Slot *following_;
  };

private:
  ~SlotList() = default;
  void unlink(Slot *slot);
  void sweep();
  void leave();
  void notify();

  WObject *sender_;
  Slot *first_ = nullptr;
  unsigned connected_ = 0;
  unsigned emitting_ = 0;
  bool stale_ = false;
  bool signalAlive_ = true;
};

} // namespace Impl

/// Base of objects whose death ends the connections to them.
class trackable
{
protected:
  trackable() = default;
  trackable(const trackable &) {}
  trackable &operator=(const trackable &) { return *this; }
  ~trackable();

private:
  friend struct Impl::Track;
  friend class Impl::Slot;
  mutable Impl::Track *tracks_ = nullptr;
};

/// Names one connected slot; copies name the same. A default-constructed one names none.
class connection
{
public:
  connection() = default;
  explicit connection(Impl::Slot *slot);
  connection(const connection &other);
  connection(connection &&other) noexcept : slot_(other.slot_) { other.slot_ = nullptr; }
  connection &operator=(connection other) noexcept
  {
    std::swap(slot_, other.slot_);
    return *this;
  }
  ~connection();

  void disconnect() const;
  bool connected() const { return slot_ && slot_->connected(); }
  bool operator==(const connection &other) const { return slot_ == other.slot_; }
  bool operator!=(const connection &other) const { return slot_ != other.slot_; }

private:
  Impl::Slot *slot_ = nullptr;
};

namespace Impl
{

/// A slot that takes the arguments A.
template <typename... A> class CallableSlot : public Slot
{
public:
  virtual void call(const A &...arguments) = 0;
};

template <typename F, typename... A> class FunctorSlot final : public CallableSlot<A...>
{
public:
  explicit FunctorSlot(const F &functor) : functor_(functor) {}
  void call(const A &...arguments) override { functor_(arguments...); }
  const F &functor() const { return functor_; }

private:
  F functor_;
};

/// Calls a method with as many of the arguments as it takes.
template <typename V, typename Method, std::size_t Count, typename... A>
class MethodSlot final : public CallableSlot<A...>
{
public:
  MethodSlot(V *target, Method method) : target_(target), method_(method) {}
  void call(const A &...arguments) override
  {
    callFirst(std::tie(arguments...), std::make_index_sequence<Count>());
  }

private:
  template <typename Arguments, std::size_t... I>
  void callFirst(const Arguments &arguments, std::index_sequence<I...>)
  {
    (target_->*method_)(std::get<I>(arguments)...);
    static_cast<void>(arguments);
  }

  V *target_;
  Method method_;
};

/// Finds the trackable objects whose pointers or references a bind object holds.
class TrackVisitor
{
public:
  explicit TrackVisitor(Slot &slot) : slot_(slot) {}

  template <typename T> void operator()(const T &value) const
  {
    if constexpr (std::is_pointer_v<T>) {
      if constexpr (std::is_convertible_v<T, const trackable *>)
        slot_.track(value);
    }
  }
  template <typename T> void operator()(const boost::reference_wrapper<T> &reference) const
  {
    (*this)(reference.get_pointer());
  }

private:
  Slot &slot_;
};

/// The trackable part of a receiver, or null if it has none.
template <typename T> const trackable *trackableOf(T *target)
{
  if constexpr (std::is_convertible_v<T *, const trackable *>)
    return target;
  else if constexpr (std::is_polymorphic_v<T>)
    return dynamic_cast<const trackable *>(target);
  else
    return nullptr;
}

/// The list of slots with arguments A that a signal holds; empty ones cost a pointer.
template <typename... A> class Slots
{
public:
  Slots() = default;
  Slots(const Slots &) = delete;
  Slots &operator=(const Slots &) = delete;
  ~Slots()
  {
    if (list_)
      list_->signalDied();
  }

  bool empty() const { return !list_ || list_->empty(); }

  template <typename F> connection add(const F &functor, WObject *sender)
  {
    auto *slot = new FunctorSlot<std::decay_t<const F &>, A...>(functor);
    connection result(slot);
    TrackVisitor visitor(*slot);
    using boost::visit_each; // bind objects bring their own
    visit_each(visitor, slot->functor(), 0);
    push(slot, sender);
    return result;
  }

  template <typename T, typename V, typename... B>
  connection add(T *target, void (V::*method)(B...), WObject *sender)
  {
    static_assert(sizeof...(B) <= sizeof...(A), "the slot takes more arguments than the signal has");
    V *receiver = target;
    auto *slot = new MethodSlot<V, void (V::*)(B...), sizeof...(B), A...>(receiver, method);
    connection result(slot);
    slot->track(trackableOf(target));
    push(slot, sender);
    return result;
  }

  void call(const A &...arguments) const
  {
    if (empty())
      return;
    SlotList::Emission emission(*list_);
    while (Slot *slot = emission.next())
      static_cast<CallableSlot<A...> *>(slot)->call(arguments...);
  }

private:
  void push(Slot *slot, WObject *sender)
  {
    if (!list_)
      list_ = new SlotList(sender);
    list_->push(slot);
  }

  SlotList *list_ = nullptr;
};

} // namespace Impl
} // namespace Signals
} // namespace Wt

#endif // WT_BASE_SLOTS_H_
