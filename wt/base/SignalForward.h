// SPDX-License-Identifier: MIT
#ifndef WT_BASE_SIGNAL_FORWARD_H_
#define WT_BASE_SIGNAL_FORWARD_H_

namespace Wt
{

/// Stands for an argument that a signal does not have.
struct NoClass {
  static const NoClass none;
};

template <typename A1 = NoClass, typename A2 = NoClass, typename A3 = NoClass, typename A4 = NoClass,
          typename A5 = NoClass, typename A6 = NoClass>
class Signal;

namespace Engine
{
struct RawEvent;
struct EventAccess;
} // namespace Engine

} // namespace Wt

#endif // WT_BASE_SIGNAL_FORWARD_H_
