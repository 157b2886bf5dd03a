// SPDX-License-Identifier: MIT
#include "WContextPanel.h"

#include "WContextPanelTitleBar.h"

#include <Wt/WVBoxLayout>

WContextPanel::WContextPanel(const Wt::WString &title, Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), layout(new Wt::WVBoxLayout()), titleBar(new WContextPanelTitleBar(title)),
      content(0)
{
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  setLayout(layout);
  setLayoutSizeAware(true);
  layout->addWidget(titleBar);
  setStyleClass("nevo-context-panel");
}

void WContextPanel::setContent(Wt::WWidget *widget, int stretch, Wt::WFlags<Wt::AlignmentFlag> alignment)
{
  content = widget;
  content->setInline(false);
  layout->addWidget(content, stretch, alignment);
}

WTitleTools &WContextPanel::titleTools()
{
  return *titleBar;
}

void WContextPanel::layoutSizeChanged(int, int height)
{
  setLayoutSizeAware(false);
  setHeight(Wt::WLength(height));
  setLayoutSizeAware(true);
}
