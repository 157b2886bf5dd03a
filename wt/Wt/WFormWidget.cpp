// SPDX-License-Identifier: MIT
#include "base/FieldValidation.h"
#include "dom/Document.h"
#include "dom/JsonText.h"
#include "session/Page.h"
#include "session/WidgetAccess.h"

#include <Wt/WContainerWidget>
#include <Wt/WFormWidget>
#include <Wt/WIntValidator>
#include <Wt/WLabel>
#include <Wt/WRegExpValidator>

namespace Wt
{

struct WFormWidget::Rare {
  explicit Rare(WFormWidget *owner) : validated(owner) {}

  WValidator *validator = nullptr;
  WString emptyText;
  WLabel *label = nullptr;
  std::unique_ptr<WString> message; ///< why the value is not valid; null while it is
  Signal<WValidator::Result> validated;
};

WFormWidget::WFormWidget(WContainerWidget *parent) : WInteractWidget(parent)
{
  setInline(true);
}

WFormWidget::~WFormWidget()
{
  setValidator(nullptr);
}

WFormWidget::Rare &WFormWidget::formRare()
{
  if (!formRare_)
    formRare_ = std::make_unique<Rare>(this);
  return *formRare_;
}

// --- Validation
// ----------------------------------------------------------------------------------------------------

void WFormWidget::setValidator(WValidator *validator)
{
  WValidator *former = this->validator();
  if (validator == former)
    return;
  static const bool hooked = [] {
    Engine::setFieldHooks(Engine::FieldHooks{[](WFormWidget *field) { field->validatorChanged(); },
                                             [](WFormWidget *field) { field->validatorGone(); }});
    return true;
  }();
  static_cast<void>(hooked);
  formRare().validator = validator;
  if (former) {
    former->removeFormWidget(this);
    if (former->parent() == this)
      delete former;
  }
  if (validator) {
    if (!validator->parent())
      addChild(validator);
    validator->addFormWidget(this);
  } else {
    formRare_->message.reset();
  }
  unjudged_ = validator != nullptr;
  repaint();
}

WValidator *WFormWidget::validator() const
{
  return formRare_ ? formRare_->validator : nullptr;
}

void WFormWidget::validatorChanged()
{
  // Not while the widget is being built: its value is not known before the first rendering.
  if (element_)
    revalidate();
}

void WFormWidget::validatorGone()
{
  formRare_->validator = nullptr;
  formRare_->message.reset();
  repaint();
}

WValidator::Result WFormWidget::judge()
{
  const WValidator::Result result = validator()->validate(valueText());
  Rare &r = formRare();
  if (result.state() == WValidator::Valid)
    r.message.reset();
  else
    r.message = std::make_unique<WString>(result.message());
  unjudged_ = false;
  repaint();
  return result;
}

WValidator::State WFormWidget::validate()
{
  if (!validator())
    return WValidator::Valid;
  const WValidator::Result result = judge();
  validated().emit(result);
  return result.state();
}

void WFormWidget::revalidate()
{
  if (validator())
    judge();
}

Signal<WValidator::Result> &WFormWidget::validated()
{
  return formRare().validated;
}

/// What the browser needs to come to the same verdict while the user types.
std::string WFormWidget::validatorConfiguration() const
{
  const WValidator &v = *validator();
  std::string json = v.isMandatory() ? "{\"m\":1" : "{\"m\":0";
  if (const auto *pattern = dynamic_cast<const WRegExpValidator *>(&v)) {
    if (!pattern->regExp().empty()) {
      json += ",\"re\":";
      Dom::appendJsonString(json, pattern->regExp().toUTF8());
      if (pattern->flags().testFlag(MatchCaseInsensitive))
        json += ",\"i\":1";
    }
  } else if (const auto *range = dynamic_cast<const WIntValidator *>(&v)) {
    json += ",\"lo\":";
    Dom::appendJsonNumber(json, range->bottom());
    json += ",\"hi\":";
    Dom::appendJsonNumber(json, range->top());
  }
  return json + '}';
}

// --- State
// ---------------------------------------------------------------------------------------------------------

void WFormWidget::setHidden(bool hidden, const WAnimation &animation)
{
  if (formRare_ && formRare_->label)
    formRare_->label->setHidden(hidden, animation);
  WInteractWidget::setHidden(hidden, animation);
}

void WFormWidget::setReadOnly(bool readOnly)
{
  if (readOnly == readOnly_)
    return;
  readOnly_ = readOnly;
  repaint();
}

void WFormWidget::setEmptyText(const WString &text)
{
  formRare().emptyText = text;
  repaint();
}

const WString &WFormWidget::emptyText() const
{
  return formRare_ ? formRare_->emptyText : WString::Empty;
}

WLabel *WFormWidget::label() const
{
  return formRare_ ? formRare_->label : nullptr;
}

void WFormWidget::setLabel(WLabel *label)
{
  formRare().label = label;
}

void WFormWidget::propagateSetEnabled(bool enabled)
{
  WInteractWidget::propagateSetEnabled(enabled);
  repaint();
}

void WFormWidget::refresh()
{
  if (formRare_)
    formRare_->emptyText.refresh();
  WInteractWidget::refresh();
}

// --- Rendering
// -----------------------------------------------------------------------------------------------------

void WFormWidget::addOwnClasses(std::string &classes) const
{
  WInteractWidget::addOwnClasses(classes);
  if (formRare_ && formRare_->message)
    classes += classes.empty() ? "Wt-invalid" : " Wt-invalid";
}

void WFormWidget::render(Dom::Element &e)
{
  if (unjudged_)
    judge();
  WInteractWidget::render(e);
}

const WString *WFormWidget::toolTipOverride() const
{
  return formRare_ && formRare_->message && !formRare_->message->empty() ? formRare_->message.get() : nullptr;
}

void WFormWidget::finishRender(Dom::Element &e)
{
  WInteractWidget::finishRender(e);
  Dom::Element &field = *fieldElement();
  field.setIf(!isEnabled(), "disabled", "");
  field.setIf(readOnly_, "readonly", "");
  if (!formRare_)
    return;
  const std::string hint = formRare_->emptyText.toUTF8();
  field.setIf(!hint.empty(), "placeholder", hint);
  field.setIf(formRare_->message != nullptr, "aria-invalid", "true");
  if (formRare_->validator)
    field.set("!valid", validatorConfiguration());
  else
    field.unset("!valid");
}

/// The browser has judged by itself, and what it shows is to follow from the same verdict here.
void WFormWidget::domValue(Dom::Element &at, const std::string &value)
{
  if (readOnly_)
    return;
  WInteractWidget::domValue(at, value);
  revalidate();
}

void WFormWidget::showValue(Dom::Element &field, const char *key, std::string_view value)
{
  const std::string *present = field.get(key);
  if (present ? *present == value : value.empty())
    return;
  field.set(key, value);
  if (field.attached())
    Engine::Page::of(field).valueSet(field.id());
}

void WFormWidget::acceptValue(Dom::Element &field, const char *key, std::string_view value)
{
  field.assume(key, value);
}

} // namespace Wt
