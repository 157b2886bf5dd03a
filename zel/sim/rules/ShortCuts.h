// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_SHORT_CUTS_H_
#define ZEL_SIM_RULES_SHORT_CUTS_H_

#include "life/World.h"

namespace zelsim
{

/// A list of short cuts that is written need not say everything: an entry changes only what it names of its
/// function key, and keys that it leaves out stay as they are.
void registerShortCutRules(Rules &rules);

/// What `before` becomes when `changes` are written to it; both are lists of short cuts.
Json mergedShortCuts(const json_t *before, const json_t *changes);

} // namespace zelsim

#endif // ZEL_SIM_RULES_SHORT_CUTS_H_
