// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WVALIDATED_EDIT_H_
#define WIDGETS_WVALIDATED_EDIT_H_

#include <Wt/WContainerWidget>
#include <Wt/WValidator>

/// A bound line edit with a validator of its own. What is not valid is written nevertheless: whoever offers
/// to save it asks first.
template <class Edit> class WValidatedEdit : public Edit
{
public:
  bool isValid() { return this->validate() == Wt::WValidator::Valid; }
  /// Whether an empty text is invalid.
  void mandatorySet(bool mandatory) { this->validator()->setMandatory(mandatory); }

protected:
  /// Owns the validator. `maxLength` is the number of characters that the browser lets a person type.
  WValidatedEdit(const char *resource, const char *param, bool indexed, Wt::WValidator *validator,
                 int maxLength, Wt::WContainerWidget *parent)
      : Edit(resource, param, indexed, parent)
  {
    this->setValidator(validator);
    this->setMaxLength(maxLength);
  }
};

#endif // WIDGETS_WVALIDATED_EDIT_H_
