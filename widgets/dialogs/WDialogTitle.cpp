// SPDX-License-Identifier: MIT
#include "WDialogTitle.h"

#include "NevoPath.h"

#include <Wt/WContainerWidget>
#include <Wt/WDialog>
#include <Wt/WHBoxLayout>
#include <Wt/WImage>
#include <Wt/WText>

std::string WDialogTitle::severityIcon(int severity)
{
  const std::string folder = NevoPath_themeBase();
  switch (severity) {
  case 0:
    return folder + "event-severity-info.png";
  case 1:
    return folder + "event-severity-warning.png";
  default:
    return folder + "event-severity-error.png";
  }
}

WDialogTitle WDialogTitle::build(Wt::WDialog &dialog, const std::string &iconUrl, const Wt::WString &title)
{
  WDialogTitle line;
  line.icon = new Wt::WImage(Wt::WLink(iconUrl));
  line.icon->setHeight(Wt::WLength(16));
  line.icon->setMargin(Wt::WLength(0));
  line.text = new Wt::WText(title);
  line.text->setMargin(Wt::WLength(0));
  line.text->setAttributeValue("role", "heading");
  line.text->setAttributeValue("aria-level", "1");
  Wt::WHBoxLayout *layout = new Wt::WHBoxLayout();
  layout->setContentsMargins(0, 0, 0, 0);
  dialog.titleBar()->setPadding(Wt::WLength(0));
  dialog.titleBar()->setLayout(layout);
  layout->addWidget(line.icon);
  layout->addWidget(line.text, 1);
  return line;
}
