// SPDX-License-Identifier: MIT
#ifndef WT_BASE_FIELD_VALIDATION_H_
#define WT_BASE_FIELD_VALIDATION_H_

namespace Wt
{

class WFormWidget;

namespace Engine
{

/// What a validator asks of the fields that use it; set once by the form widgets, which validators do not
/// know.
struct FieldHooks {
  void (*validate)(WFormWidget *field);      ///< the validator changed: validate anew
  void (*lostValidator)(WFormWidget *field); ///< the validator is being deleted: forget it
};

void setFieldHooks(const FieldHooks &hooks);
void validateField(WFormWidget *field);
void fieldLostValidator(WFormWidget *field);

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_FIELD_VALIDATION_H_
