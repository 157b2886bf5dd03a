// SPDX-License-Identifier: MIT
#ifndef ZEL_CLIENT_ROWS_H_
#define ZEL_CLIENT_ROWS_H_

#include <cstddef>
#include <jansson.h>

/// How a response is seen as rows: a list has its entries, one record is a list of one, a failure has none.
namespace zelclient
{

inline bool isFailure(const json_t *response)
{
  return json_object_get(response, "errors") != nullptr;
}

inline std::size_t countRows(const json_t *response)
{
  if (json_is_array(response))
    return json_array_size(response);
  return json_object_size(response) > 0 && !isFailure(response) ? 1 : 0;
}

/// Owned by the response; null if there is no such row.
inline json_t *rowOf(const json_t *response, std::size_t row)
{
  if (json_is_array(response))
    return json_array_get(response, row);
  return row < countRows(response) ? const_cast<json_t *>(response) : nullptr;
}

} // namespace zelclient

#endif // ZEL_CLIENT_ROWS_H_
