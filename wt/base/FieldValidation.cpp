// SPDX-License-Identifier: MIT
#include "base/FieldValidation.h"

#include <atomic>

namespace Wt
{
namespace Engine
{

namespace
{

std::atomic<void (*)(WFormWidget *)> validateHook{nullptr};
std::atomic<void (*)(WFormWidget *)> lostValidatorHook{nullptr};

void call(void (*hook)(WFormWidget *), WFormWidget *field)
{
  if (hook)
    hook(field);
}

} // namespace

void setFieldHooks(const FieldHooks &hooks)
{
  validateHook = hooks.validate;
  lostValidatorHook = hooks.lostValidator;
}

void validateField(WFormWidget *field)
{
  call(validateHook, field);
}

void fieldLostValidator(WFormWidget *field)
{
  call(lostValidatorHook, field);
}

} // namespace Engine
} // namespace Wt
