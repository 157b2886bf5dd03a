// SPDX-License-Identifier: MIT
#ifndef WT_WSIGNAL_H_
#define WT_WSIGNAL_H_

#include "../base/EventAccess.h"

#include <Wt/WObject>

namespace Wt
{

/// What all signals have in common. Slots run in reverse order of their connection.
class SignalBase
{
public:
  explicit SignalBase(WObject *sender) : sender_(sender) {}
  SignalBase(const SignalBase &) = delete;
  SignalBase &operator=(const SignalBase &) = delete;
  virtual ~SignalBase();

  virtual bool isConnected() const = 0;
  /// A blocked signal does nothing when emitted.
  void setBlocked(bool blocked) { blocked_ = blocked; }
  bool isBlocked() const { return blocked_; }
  WObject *sender() const { return sender_; }

private:
  WObject *sender_;
  bool blocked_ = false;
};

/// A signal that the program emits itself.
template <typename A1, typename A2, typename A3, typename A4, typename A5, typename A6>
class Signal : public SignalBase
{
public:
  explicit Signal(WObject *sender = nullptr) : SignalBase(sender) {}

  /// Connects a function object that takes all six arguments, NoClass where unused (a bind object does).
  template <typename F> Signals::connection connect(const F &functor)
  {
    return slots_.add(functor, this->sender());
  }

  /// Connects a method that takes the first arguments, or none.
  template <typename T, typename V, typename... B>
  Signals::connection connect(T *target, void (V::*method)(B...))
  {
    return slots_.add(target, method, this->sender());
  }

  bool isConnected() const override { return !slots_.empty(); }

  void emit(A1 a1 = NoClass::none, A2 a2 = NoClass::none, A3 a3 = NoClass::none, A4 a4 = NoClass::none,
            A5 a5 = NoClass::none, A6 a6 = NoClass::none) const
  {
    if (!this->isBlocked())
      slots_.call(a1, a2, a3, a4, a5, a6);
  }

  void operator()(A1 a1 = NoClass::none, A2 a2 = NoClass::none, A3 a3 = NoClass::none, A4 a4 = NoClass::none,
                  A5 a5 = NoClass::none, A6 a6 = NoClass::none) const
  {
    emit(a1, a2, a3, a4, a5, a6);
  }

private:
  Signals::Impl::Slots<A1, A2, A3, A4, A5, A6> slots_;
};

/// A signal that something in the browser emits; the browser listens only while a slot is connected.
class EventSignalBase : public SignalBase
{
public:
  /// `name` is the browser's name of the event and must outlive the signal.
  EventSignalBase(const char *name, WObject *sender) : SignalBase(sender), name_(name) {}

  const char *name() const { return name_; }

protected:
  void setName(const char *name) { name_ = name; }

private:
  friend struct Engine::EventAccess;
  virtual void dispatch(const Engine::RawEvent &event) = 0;

  const char *name_;
};

/// A browser event that is delivered with an event object E, such as WMouseEvent.
template <typename E = NoClass> class EventSignal : public EventSignalBase
{
public:
  EventSignal(const char *name, WObject *sender) : EventSignalBase(name, sender) {}

  /// Connects a function object that takes the event object (a bind object may ignore it).
  template <typename F> Signals::connection connect(const F &functor)
  {
    return slots_.add(functor, sender());
  }

  template <typename T, typename V> Signals::connection connect(T *target, void (V::*method)())
  {
    static_assert(std::is_base_of_v<WObject, V>, "a slot of an event signal is a method of a WObject");
    return slots_.add(target, method, sender());
  }
  template <typename T, typename V> Signals::connection connect(T *target, void (V::*method)(E))
  {
    return slots_.add(target, method, sender());
  }
  template <typename T, typename V> Signals::connection connect(T *target, void (V::*method)(const E &))
  {
    return slots_.add(target, method, sender());
  }

  bool isConnected() const override { return !slots_.empty(); }

  void emit(E event = NoClass::none) const
  {
    if (!isBlocked())
      slots_.call(event);
  }
  void operator()(E event = NoClass::none) const { emit(event); }

private:
  void dispatch(const Engine::RawEvent &event) override { emit(Engine::EventAccess::make<E>(event)); }

  Signals::Impl::Slots<E> slots_;
};

} // namespace Wt

#endif // WT_WSIGNAL_H_
