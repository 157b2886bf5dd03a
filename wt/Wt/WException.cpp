// SPDX-License-Identifier: MIT
#include <Wt/WException>

namespace Wt
{

WException::WException(const std::string &what) : what_(what) {}

WException::~WException() noexcept = default;

} // namespace Wt
