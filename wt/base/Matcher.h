// SPDX-License-Identifier: MIT
#ifndef WT_BASE_MATCHER_H_
#define WT_BASE_MATCHER_H_

#include "base/Pattern.h"

#include <Wt/WGlobal>
#include <boost/any.hpp>
#include <memory>
#include <string>

namespace Wt
{
namespace Engine
{

/// Compares model values with one value in the way that the flags say.
class Matcher
{
public:
  Matcher(const boost::any &value, WFlags<MatchFlag> flags);

  bool matches(const boost::any &candidate) const;

private:
  boost::any value_;
  std::string text_;
  int kind_;
  bool caseSensitive_;
  std::unique_ptr<Pattern> pattern_;
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_MATCHER_H_
