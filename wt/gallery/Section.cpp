// SPDX-License-Identifier: MIT
#include "Section.h"

#include <Wt/WText>

namespace gallery
{

Section::Section(const std::string &title, Wt::WContainerWidget *parent) : Wt::WContainerWidget(parent)
{
  addStyleClass("gallery-section");
  setAttributeValue("role", "region");
  setAttributeValue("aria-label", Wt::WString::fromUTF8(title));
  new Wt::WText(Wt::WString::fromUTF8("<h2>" + title + "</h2>"), this);
  told_ = new Wt::WText(Wt::WString(), Wt::PlainText, this);
  told_->setInline(false);
  told_->addStyleClass("gallery-told");
  told_->setAttributeValue("role", "status");
}

Wt::WContainerWidget *Section::row(const std::string &name)
{
  Wt::WContainerWidget *line = new Wt::WContainerWidget(this);
  line->addStyleClass("gallery-row");
  Wt::WText *label = new Wt::WText(Wt::WString::fromUTF8(name), Wt::PlainText, line);
  label->addStyleClass("gallery-name");
  Wt::WContainerWidget *place = new Wt::WContainerWidget(line);
  place->addStyleClass("gallery-place");
  return place;
}

void Section::tell(const Wt::WString &text)
{
  told_->setText(text);
}

std::function<void()> Section::teller(const std::string &text)
{
  return [this, text] { tell(Wt::WString::fromUTF8(text)); };
}

} // namespace gallery
