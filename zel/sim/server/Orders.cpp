// SPDX-License-Identifier: MIT
#include "server/Orders.h"

#include <algorithm>

namespace zelsim
{

namespace
{

// Whether a wanted index, or a list of them, holds the record's.
bool holdsIndex(const json_t *wanted, unsigned index)
{
  for (std::size_t i = 0; i < json_array_size(wanted); ++i)
    if (holdsIndex(json_array_get(wanted, i), index))
      return true;
  return (json_is_integer(wanted) && json_integer_value(wanted) == index) ||
         (json_is_string(wanted) && json_string_value(wanted) == std::to_string(index));
}

bool isKeyOf(const Request &request, const json_t *section, unsigned index, const Store &store)
{
  for (std::size_t i = 0; i < request.resource->parameterCount; ++i) {
    const Parameter &row = request.resource->parameters[i];
    const json_t *key = row.is(kLookup) ? json_object_get(section, row.name) : nullptr;
    if (json_is_string(key) && store.text(request.resource->name, index, row.name) == json_string_value(key))
      return true;
  }
  return false;
}

bool namesRecord(const Request &request, unsigned index, const Store &store)
{
  const json_t *params = json_object_get(request.params, "index");
  const json_t *query = json_object_get(request.query, "index");
  if (params || query)
    return holdsIndex(params, index) || holdsIndex(query, index);
  return isKeyOf(request, request.query, index, store) || isKeyOf(request, request.params, index, store);
}

bool namesParameter(const Request &request, const std::string &parameter)
{
  const auto isIt = [&parameter](const Parameter *step) { return parameter == step->name; };
  if (std::any_of(request.path.begin(), request.path.end(), isIt) ||
      json_object_get(request.params, parameter.c_str()))
    return true;
  for (std::size_t i = 0; i < json_array_size(request.select); ++i)
    if (parameter == json_string_value(json_array_get(request.select, i)))
      return true;
  return request.method == Method::Get && request.path.empty() && json_array_size(request.select) == 0;
}

} // namespace

bool isMeant(const Order &order, const Request &request, const Store &store)
{
  return order.method == request.method && order.resource == request.resource &&
         (order.index == 0 || namesRecord(request, order.index, store)) &&
         (order.parameter.empty() || namesParameter(request, order.parameter));
}

Problem followOrders(Faults &faults, const Request &request, const Store &store, int &delayMs)
{
  Problem refusal;
  for (auto order = faults.orders.begin(); order != faults.orders.end();) {
    const bool follows = isMeant(*order, request, store) && !(refusal && order->errorNumber != 0);
    if (follows) {
      delayMs += order->delayMs;
      if (order->errorNumber != 0)
        refusal = Problem(static_cast<Errno>(order->errorNumber), order->detail);
    }
    const bool isLast = follows && order->times == 1;
    if (follows && order->times > 1)
      --order->times;
    order = isLast ? faults.orders.erase(order) : std::next(order);
  }
  return refusal;
}

} // namespace zelsim
