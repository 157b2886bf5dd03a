// SPDX-License-Identifier: MIT
#ifndef WT_WEXCEPTION_H_
#define WT_WEXCEPTION_H_

#include <exception>
#include <string>

namespace Wt
{

/// What the toolkit throws.
class WException : public std::exception
{
public:
  explicit WException(const std::string &what);
  ~WException() noexcept override;
  const char *what() const noexcept override { return what_.c_str(); }

private:
  std::string what_;
};

} // namespace Wt

#endif // WT_WEXCEPTION_H_
