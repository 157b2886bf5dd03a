// SPDX-License-Identifier: MIT
#include "WTxIcon.h"

#include "NevoPath.h"
#include "WTxIconSelDialog.h"

#include <Wt/WFileResource>
#include <Wt/WImage>
#include <Wt/WLink>

namespace
{

enum Page { Icon, Unknown };

} // namespace

WTxIcon::WTxIcon(const char *resourceName, const char *parameterName, bool isIndexed,
                 Wt::WContainerWidget *parent)
    : Wt::WStackedWidget(parent), WWidgetZel(resourceName, parameterName, isIndexed), iconIndex(0), file(0),
      icon(new Wt::WImage(this))
{
  addStyleClass("nevo-tx-icon-tight");
  new Wt::WImage(Wt::WLink(NevoPath_themeBase() + "icon-unknown.png"), this);
  showUnknown();
  clicked().connect(this, &WTxIcon::clickedHandler);
}

void WTxIcon::showSelectedIcon()
{
  delete file;
  file = new Wt::WFileResource("image/png", NevoPath_iconFileName(iconIndex), this);
  icon->setImageLink(Wt::WLink(file));
  setCurrentIndex(Icon);
}

void WTxIcon::showUnknown()
{
  setCurrentIndex(Unknown);
}

void WTxIcon::show(Agreement agreement)
{
  if (agreement == Agreeing)
    showSelectedIcon();
  else
    showUnknown();
}

bool WTxIcon::readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                               bool force)
{
  if (keepsEdit(force))
    return false;
  const Agreement agreement = readCommon(indexes, iconIndex, errors);
  show(agreement);
  return endRead(agreement);
}

void WTxIcon::getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force)
{
  if (keepsEdit(force))
    return;
  const Agreement agreement = extractCommon(response, indexes, iconIndex);
  show(agreement);
  endBulkRead(agreement);
}

bool WTxIcon::writeToDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors)
{
  if (!changedContent)
    return false;
  bool failed = false;
  for (const unsigned int index : addressed(indexes))
    failed = writeOne(index, iconIndex, errors) || failed;
  changedContent = false;
  return failed;
}

void WTxIcon::setZelParam(json_t *params)
{
  if (changedContent)
    addTo(params, iconIndex);
}

void WTxIcon::clickedHandler()
{
  WTxIconSelDialog dialog;
  dialog.exec();
  if (dialog.selection() == 0)
    return;
  iconIndex = dialog.selection();
  showSelectedIcon();
  endEdit();
}
