// SPDX-License-Identifier: MIT
#ifndef ZEL_CLIENT_SHARED_VALUE_H_
#define ZEL_CLIENT_SHARED_VALUE_H_

#include <cstddef>
#include <jansson.h>

/// References to values that threads share. The library's own macros count atomically too, but look first
/// whether the value is one of the constants, which is a plain read beside another thread's counting.
namespace zelclient
{

inline bool isCounted(const json_t *value)
{
  return value && __atomic_load_n(&value->refcount, __ATOMIC_RELAXED) != static_cast<std::size_t>(-1);
}

inline json_t *retain(json_t *value)
{
  if (isCounted(value))
    __atomic_add_fetch(&value->refcount, 1, __ATOMIC_RELAXED);
  return value;
}

inline void release(json_t *value)
{
  if (isCounted(value) && __atomic_sub_fetch(&value->refcount, 1, __ATOMIC_ACQ_REL) == 0)
    json_delete(value);
}

} // namespace zelclient

#endif // ZEL_CLIENT_SHARED_VALUE_H_
