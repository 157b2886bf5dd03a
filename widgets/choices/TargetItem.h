// SPDX-License-Identifier: MIT
#ifndef WIDGETS_TARGET_ITEM_H_
#define WIDGETS_TARGET_ITEM_H_

#include <string>

/// A transmitter among the targets of users.
struct TargetItem {
  unsigned int index; ///< its record in "tx"
  bool conflict;      ///< some of several users have it and some do not
  std::string eid;
  std::string name; ///< may be empty
};

/// How a choice of a target names it: its EID, and its name in brackets if it has one.
std::string TargetItem_text(const std::string &eid, const std::string &name);
/// The EID in such a text: its first 13 characters.
std::string TargetItem_eidOf(const std::string &text);

#endif // WIDGETS_TARGET_ITEM_H_
