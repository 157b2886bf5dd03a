// SPDX-License-Identifier: MIT
#ifndef STORE_TARGET_RIGHTS_H_
#define STORE_TARGET_RIGHTS_H_

#include "Db.h"

#include <optional>
#include <unordered_set>

/// Which transmitters a user may reach.
class TargetRights
{
public:
  /// None if they cannot be read; the store's reasons are logged and appended to `errors`.
  [[nodiscard]] static std::optional<TargetRights> read(unsigned int userIndex, Db::Errors &errors);

  bool allow(unsigned int txIndex) const { return reachesAll || targets.count(txIndex) != 0; }

private:
  bool reachesAll = false;
  std::unordered_set<unsigned int> targets;
};

#endif // STORE_TARGET_RIGHTS_H_
