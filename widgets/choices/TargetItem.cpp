// SPDX-License-Identifier: MIT
#include "TargetItem.h"

std::string TargetItem_text(const std::string &eid, const std::string &name)
{
  return name.empty() ? eid : eid + " (" + name + ")";
}

std::string TargetItem_eidOf(const std::string &text)
{
  return text.substr(0, 13);
}
