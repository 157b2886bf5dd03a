// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_SESSION_ROWS_H_
#define VIEWS_SESSIONS_SESSION_ROWS_H_

#include "ListColumn.h"
#include "ListRow.h"
#include "SessionRecord.h"

#include <optional>
#include <vector>

/// The rows of a list of sessions: who works at which receiver with which transmitter, in which mode, and for
/// how long.
namespace SessionRows
{

ListColumns columns();

/// None for sessions that could not be read.
std::optional<ListRows> of(const std::optional<std::vector<SessionRecord>> &sessions);

} // namespace SessionRows

#endif // VIEWS_SESSIONS_SESSION_ROWS_H_
