// SPDX-License-Identifier: MIT
#ifndef WT_WJAVASCRIPT_H_
#define WT_WJAVASCRIPT_H_

#include "../base/EventArguments.h"

#include <Wt/WSignal>
#include <string>

namespace Wt
{

/// A signal that script in the browser emits, with up to six arguments. An event whose arguments are too few
/// or do not convert is dropped.
template <typename A1 = NoClass, typename A2 = NoClass, typename A3 = NoClass, typename A4 = NoClass,
          typename A5 = NoClass, typename A6 = NoClass>
class JSignal : public EventSignalBase
{
public:
  JSignal(WObject *sender, const std::string &name) : EventSignalBase("", sender), jsName_(name)
  {
    setName(jsName_.c_str());
  }

  const std::string &name() const { return jsName_; }

  template <typename F> Signals::connection connect(const F &functor)
  {
    return slots_.add(functor, this->sender());
  }
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
  void dispatch(const Engine::RawEvent &event) override
  {
    A1 a1{};
    A2 a2{};
    A3 a3{};
    A4 a4{};
    A5 a5{};
    A6 a6{};
    Engine::ArgumentReader reader(event);
    if (reader.read(a1) && reader.read(a2) && reader.read(a3) && reader.read(a4) && reader.read(a5) &&
        reader.read(a6))
      emit(a1, a2, a3, a4, a5, a6);
  }

  std::string jsName_;
  Signals::Impl::Slots<A1, A2, A3, A4, A5, A6> slots_;
};

} // namespace Wt

#endif // WT_WJAVASCRIPT_H_
