// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_VALIDATE_H_
#define ZEL_SIM_RULES_VALIDATE_H_

#include "data/Catalogue.h"
#include "data/Value.h"
#include "rules/Rule.h"

#include <vector>

namespace zelsim
{

/// Adds a problem for everything in `given` that the parameter's row does not allow.
///
/// Some leniency, since several hands write requests: an Integer may come as a text of digits, a Boolean
/// as 0 or 1 or as a word, and a Word of "enabled" and "disabled" as a boolean.
void validate(const Parameter &parameter, const json_t *given, std::vector<Problem> &problems);

/// The value to keep for `given`, which validate() has found good. Objects change only the members that
/// `given` names; lists are replaced. Secrets come out hashed.
Value toValue(const Parameter &parameter, const json_t *given, const Value &present);

} // namespace zelsim

#endif // ZEL_SIM_RULES_VALIDATE_H_
