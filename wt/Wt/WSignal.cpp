// SPDX-License-Identifier: MIT
#include <Wt/WSignal>

namespace Wt
{

const NoClass NoClass::none = NoClass();

SignalBase::~SignalBase() = default;

} // namespace Wt
