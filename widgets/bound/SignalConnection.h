// SPDX-License-Identifier: MIT
#ifndef WIDGETS_SIGNAL_CONNECTION_H_
#define WIDGETS_SIGNAL_CONNECTION_H_

#include <Wt/WObject>
#include <Wt/WSignal>
#include <utility>

/// What connecting a signal gives, by which it is disconnected again. Its type differs between the toolkit's
/// versions.
typedef decltype(std::declval<Wt::Signal<> &>().connect(
    static_cast<Wt::WObject *>(0), static_cast<Wt::WObject::Method>(0))) SignalConnection;

#endif // WIDGETS_SIGNAL_CONNECTION_H_
