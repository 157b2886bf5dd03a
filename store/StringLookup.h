// SPDX-License-Identifier: MIT
#ifndef STORE_STRING_LOOKUP_H_
#define STORE_STRING_LOOKUP_H_

/// A constant table of pairs of texts, searched in both directions.
class StringLookup
{
public:
  struct Pair {
    const char *key;
    const char *value;
  };

  /// Keeps the pointer: the pairs must outlive the object. A count of 0 or below is an empty table.
  StringLookup(const StringLookup::Pair *pairs, int count);
  virtual ~StringLookup();

  /// The other half of the first pair that matches exactly; null if none does.
  virtual const char *keyToValue(const char *key);
  virtual const char *valueToKey(const char *value);

private:
  const Pair *pairs_;
  int count_;
};

#endif // STORE_STRING_LOOKUP_H_
