// SPDX-License-Identifier: MIT
#ifndef WT_BASE_EVENT_ARGUMENTS_H_
#define WT_BASE_EVENT_ARGUMENTS_H_

#include "RawEvent.h"

#include <Wt/WEvent>
#include <Wt/WString>
#include <cstddef>
#include <string>

namespace Wt
{
namespace Engine
{

/// Takes the arguments of a script's event one after another; false when one is missing or does not convert.
class ArgumentReader
{
public:
  explicit ArgumentReader(const RawEvent &event) : event_(event) {}

  bool read(NoClass &) { return true; }
  bool read(int &value);
  bool read(unsigned &value);
  bool read(long &value);
  bool read(long long &value);
  bool read(double &value);
  bool read(bool &value);
  bool read(std::string &value);
  bool read(WString &value);
  /// The event's own mouse or key data; takes no argument.
  bool read(WMouseEvent &value);
  bool read(WKeyEvent &value);

private:
  const std::string *next();
  template <typename T> bool readNumber(T &value);

  const RawEvent &event_;
  std::size_t position_ = 0;
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_EVENT_ARGUMENTS_H_
