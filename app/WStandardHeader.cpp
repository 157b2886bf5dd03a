// SPDX-License-Identifier: MIT
#include "WStandardHeader.h"

#include "Attributes.h"
#include "Db.h"
#include "NevoPath.h"
#include "Text.h"
#include "WHeaderLinks.h"

#include <Wt/WAnchor>
#include <Wt/WImage>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WText>
#include <vector>

namespace
{

const unsigned int kThisSwitch = 1;
const int kAllFreeRoom = 2000; ///< pixels, more than a page is wide

std::string whoAndWhere(const std::string &userName)
{
  std::string line = text("Corvane KVM, user:").toUTF8() + " " + userName;
  std::vector<std::string> errors;
  std::string switchName;
  Db_db.readString("swx", kThisSwitch, "name", switchName, errors);
  if (!switchName.empty())
    line += ", " + text("logged in to").toUTF8() + " " + switchName;
  return line;
}

} // namespace

WStandardHeader::WStandardHeader(std::string userName, Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent)
{
  Wt::WTable *table = new Wt::WTable();
  table->setStyleClass("nevo-header-overall");

  Wt::WTableCell *left = table->elementAt(0, 0);
  left->setStyleClass("nevo-header-logo-left");
  const std::string website = Attributes_getString("vendor.website", "");
  Wt::WAnchor *home = new Wt::WAnchor(left);
  home->setLink(Wt::WLink(website));
  home->setTarget(Wt::TargetNewWindow);
  home->setImage(
      new Wt::WImage(Wt::WLink(NevoPath_themeBase() + "logo-primary-page-header.png"), text("Corvane KVM")));
  if (!website.empty())
    home->setToolTip(text("Company web site"));

  Wt::WTableCell *middle = table->elementAt(0, 1);
  middle->setStyleClass("nevo-header-logo-middle");
  new Wt::WImage(Wt::WLink(NevoPath_themeBase() + "logo-secondary-page-header.png"), Wt::WString(), middle);

  Wt::WTableCell *textCell = table->elementAt(0, 2);
  textCell->setStyleClass("nevo-header-text-middle");
  textCell->setWidth(Wt::WLength(kAllFreeRoom));
  Wt::WText *heading = new Wt::WText(Wt::WString::fromUTF8(whoAndWhere(userName)), Wt::PlainText, textCell);
  heading->setAttributeValue("role", "heading");
  heading->setAttributeValue("aria-level", "1");

  Wt::WTableCell *right = table->elementAt(0, 3);
  right->setStyleClass("nevo-header-rhs");
  new WHeaderLinks(right);

  addWidget(table);
  setAttributeValue("role", "banner");
}
