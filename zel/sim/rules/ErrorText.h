// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_ERROR_TEXT_H_
#define ZEL_SIM_RULES_ERROR_TEXT_H_

#include "rules/Rule.h"

#include <string>

namespace zelsim
{

/// What a number of Errno says, for whoever is at the control channel; null for a number that is none.
const char *errorWords(int number);

/// Such as "error 11, not unique: name".
std::string describeProblem(const Problem &problem);

/// All numbers with their words, a line each.
std::string listErrors();

} // namespace zelsim

#endif // ZEL_SIM_RULES_ERROR_TEXT_H_
