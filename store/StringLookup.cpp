// SPDX-License-Identifier: MIT
#include "StringLookup.h"

#include <cstring>

StringLookup::StringLookup(const StringLookup::Pair *pairs, int count) : pairs_(pairs), count_(count) {}

StringLookup::~StringLookup() = default;

const char *StringLookup::keyToValue(const char *key)
{
  for (int i = 0; key && i < count_; ++i) {
    if (std::strcmp(pairs_[i].key, key) == 0)
      return pairs_[i].value;
  }
  return nullptr;
}

const char *StringLookup::valueToKey(const char *value)
{
  for (int i = 0; value && i < count_; ++i) {
    if (std::strcmp(pairs_[i].value, value) == 0)
      return pairs_[i].key;
  }
  return nullptr;
}
