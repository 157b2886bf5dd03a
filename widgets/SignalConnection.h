// SPDX-License-Identifier: MIT
#ifndef WIDGETS_SIGNAL_CONNECTION_H_
#define WIDGETS_SIGNAL_CONNECTION_H_

#include <Wt/WObject>
#include <Wt/WSignal>
#include <utility>

/// What connecting to a widget's signal gives, to take the connection back by; releases of the toolkit name
/// the type differently.
typedef decltype(std::declval<Wt::Signal<> &>().connect(
    static_cast<Wt::WObject *>(0), static_cast<Wt::WObject::Method>(0))) SignalConnection;

#endif // WIDGETS_SIGNAL_CONNECTION_H_
