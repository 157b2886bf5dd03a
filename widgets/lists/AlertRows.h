// SPDX-License-Identifier: MIT
#ifndef WIDGETS_ALERT_ROWS_H_
#define WIDGETS_ALERT_ROWS_H_

#include "AlertRecord.h"
#include "ListColumn.h"
#include "ListRow.h"

#include <optional>
#include <vector>

/// The rows of a list of alerts.
namespace AlertRows
{

enum Column { InstanceColumn, DateColumn, TypeColumn, OriginatorColumn, MessageColumn };

/// Reads one of the store's two lists of alerts, such as AlertRecord::readHistory.
typedef std::optional<std::vector<AlertRecord>> (*Retrieve)();

ListColumns columns();

/// The store's list, the newest alert on top; none if it cannot be read.
std::optional<ListRows> read(Retrieve retrieve);

} // namespace AlertRows

#endif // WIDGETS_ALERT_ROWS_H_
