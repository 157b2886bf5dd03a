// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_SERVER_ORDERS_H_
#define ZEL_SIM_SERVER_ORDERS_H_

#include "data/Faults.h"
#include "data/Store.h"
#include "server/Request.h"

namespace zelsim
{

/// Whether the order speaks of the request. A record is meant by its index, within a list of indexes, or by
/// a key that finds it, such as a user's name.
bool isMeant(const Order &order, const Request &request, const Store &store);

/// Follows the orders that speak of the request, each once: adds to `delayMs`, and returns the refusal if
/// there is one. An order that has been followed for the last time goes.
Problem followOrders(Faults &faults, const Request &request, const Store &store, int &delayMs);

} // namespace zelsim

#endif // ZEL_SIM_SERVER_ORDERS_H_
