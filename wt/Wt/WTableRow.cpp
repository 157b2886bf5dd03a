// SPDX-License-Identifier: MIT
#include "dom/Element.h"

#include <Wt/WTable>
#include <Wt/WTableRow>
#include <algorithm>
#include <sstream>

namespace Wt
{

WTableRow::~WTableRow() = default;

WTableCell *WTableRow::elementAt(int column)
{
  return table_->elementAt(rowNum(), column);
}

int WTableRow::rowNum() const
{
  return table_->rowNumber(*this);
}

int WTableRow::columnOf(const WTableCell *cell) const
{
  return static_cast<int>(std::find(cells_.begin(), cells_.end(), cell) - cells_.begin());
}

void WTableRow::setHeight(const WLength &height)
{
  height_ = height;
  table_->rowsChanged();
}

void WTableRow::setStyleClass(const WString &styleClass)
{
  styleClass_ = styleClass;
  table_->rowsChanged();
}

void WTableRow::addStyleClass(const WString &styleClass)
{
  removeStyleClass(styleClass);
  std::string classes = styleClass_.toUTF8();
  if (!classes.empty())
    classes += ' ';
  setStyleClass(WString::fromUTF8(classes + styleClass.toUTF8()));
}

void WTableRow::removeStyleClass(const WString &styleClass)
{
  const std::string gone = styleClass.toUTF8();
  std::istringstream words(styleClass_.toUTF8());
  std::string left;
  std::string word;
  while (words >> word)
    if (word != gone)
      left += left.empty() ? word : ' ' + word;
  setStyleClass(WString::fromUTF8(left));
}

void WTableRow::setHidden(bool hidden)
{
  hidden_ = hidden;
  table_->rowsChanged();
}

void WTableRow::render()
{
  const std::string classes = styleClass_.toUTF8();
  element_->setIf(!classes.empty(), "class", classes);
  element_->setIf(!height_.isAuto(), "*height", height_.cssText());
  element_->setIf(hidden_, "hidden", "");
}

} // namespace Wt
