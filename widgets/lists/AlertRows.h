// SPDX-License-Identifier: MIT
#ifndef WIDGETS_ALERT_ROWS_H_
#define WIDGETS_ALERT_ROWS_H_

#include "AlertRecord.h"

#include <optional>
#include <string>
#include <vector>

namespace Wt
{
class WStandardItemModel;
}

/// The rows of a list of alerts: how a list's model shows what the store gives.
namespace AlertRows
{

enum Column { InstanceColumn, DateColumn, TypeColumn, OriginatorColumn, MessageColumn, ColumnCount };

/// Reads one of the store's two lists of alerts, such as AlertRecord::readHistory.
typedef std::optional<std::vector<AlertRecord>> (*Retrieve)();

/// The headings in UTF-8; `instance` heads the hidden column.
std::vector<std::string> headings(const std::string &instance);

/// Reads the store's list into the model, the newest alert on top; a list that cannot be read leaves it
/// empty. A model that shows the list already is not touched.
void read(Retrieve retrieve, Wt::WStandardItemModel &model);

} // namespace AlertRows

#endif // WIDGETS_ALERT_ROWS_H_
