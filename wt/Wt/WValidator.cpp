// SPDX-License-Identifier: MIT
#include "base/FieldValidation.h"
#include "base/OwnTexts.h"

#include <Wt/WValidator>
#include <algorithm>

namespace Wt
{

WValidator::WValidator(WObject *parent) : WObject(parent) {}

WValidator::WValidator(bool mandatory, WObject *parent) : WObject(parent), mandatory_(mandatory) {}

WValidator::~WValidator()
{
  while (!formWidgets_.empty()) {
    WFormWidget *widget = formWidgets_.back();
    formWidgets_.pop_back();
    Engine::fieldLostValidator(widget);
  }
}

void WValidator::setMandatory(bool mandatory)
{
  if (mandatory_ == mandatory)
    return;
  mandatory_ = mandatory;
  repaint();
}

void WValidator::setInvalidBlankText(const WString &text)
{
  blankText_ = std::make_unique<WString>(text);
  repaint();
}

WString WValidator::invalidBlankText() const
{
  return blankText_
             ? *blankText_
             : WString::fromUTF8(Engine::ownText("Wt.WValidator.Mandatory", "This field cannot be empty"));
}

WValidator::Result WValidator::validate(const WString &input) const
{
  if (mandatory_ && input.empty())
    return Result(InvalidEmpty, invalidBlankText());
  return Result(Valid);
}

void WValidator::repaint()
{
  const std::vector<WFormWidget *> widgets = formWidgets_;
  for (WFormWidget *widget : widgets)
    if (std::find(formWidgets_.begin(), formWidgets_.end(), widget) != formWidgets_.end())
      Engine::validateField(widget);
}

void WValidator::addFormWidget(WFormWidget *widget)
{
  formWidgets_.push_back(widget);
}

void WValidator::removeFormWidget(WFormWidget *widget)
{
  formWidgets_.erase(std::remove(formWidgets_.begin(), formWidgets_.end(), widget), formWidgets_.end());
}

} // namespace Wt
