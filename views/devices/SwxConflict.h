// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_SWX_CONFLICT_H_
#define VIEWS_DEVICES_SWX_CONFLICT_H_

#include <vector>

/// Whether one of these switches is in conflict with a master, or its status cannot be read.
bool SwxConflict_isAmong(const std::vector<unsigned int> &indexes);

#endif // VIEWS_DEVICES_SWX_CONFLICT_H_
