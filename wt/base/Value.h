// SPDX-License-Identifier: MIT
#ifndef WT_BASE_VALUE_H_
#define WT_BASE_VALUE_H_

#include <boost/any.hpp>
#include <string>

namespace Wt
{
namespace Engine
{

/// The UTF-8 text of a model value; empty if it has none.
std::string valueText(const boost::any &value);

/// Negative, zero or positive as `left` comes before, with or after `right`. An empty value comes first;
/// values of one type compare by that type, others by their texts.
int compareValues(const boost::any &left, const boost::any &right);

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_VALUE_H_
