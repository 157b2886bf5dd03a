// SPDX-License-Identifier: MIT
#include "WCollapsingContextPanel.h"

#include "WCollapsingContextPanelTitleBar.h"

#include <Wt/WEvent>
#include <Wt/WVBoxLayout>

namespace
{

const int kFoldedHeight = 24; ///< pixels: the title alone
const int kSmallestOpen = 90; ///< pixels below which an adaptive panel shows its title only
const int kFadeMilliseconds = 300;

enum FoldState { Open = 0, Folded = 1 };

} // namespace

WCollapsingContextPanel::WCollapsingContextPanel(const Wt::WString &title, HeightType type, int height,
                                                 Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), layout(new Wt::WVBoxLayout()),
      animation(new Wt::WAnimation(Wt::WAnimation::Fade, Wt::WAnimation::Linear, kFadeMilliseconds)),
      titleBar(new WCollapsingContextPanelTitleBar(title)), content(0), heightType(type), fixedHeight(height),
      lastHeight(height), collapsed(false), contentHidden(false)
{
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  setLayout(layout);
  resize(Wt::WLength::Auto, Wt::WLength(height));
  setLayoutSizeAware(heightType == HeightAdaptive);
  titleBar->setInline(false);
  titleBar->setPadding(Wt::WLength(0));
  titleBar->setStyleClass("nevo-context-panel-title-button-collapsing");
  titleBar->mouseWentUp().connect(this, &WCollapsingContextPanel::titleButtonClicked);
  layout->addWidget(titleBar);
  setStyleClass("nevo-context-panel");
}

WCollapsingContextPanel::~WCollapsingContextPanel() = default;

void WCollapsingContextPanel::setContent(Wt::WWidget *widget, int stretch,
                                         Wt::WFlags<Wt::AlignmentFlag> alignment)
{
  content = widget;
  content->setInline(false);
  layout->addWidget(content, stretch, alignment);
}

void WCollapsingContextPanel::hideContent()
{
  contentHidden = true;
  if (content)
    content->hide();
  setAttributeValue("data-empty", emptyText);
}

void WCollapsingContextPanel::showContent()
{
  contentHidden = false;
  if (content)
    content->show();
  setAttributeValue("data-empty", Wt::WString());
}

void WCollapsingContextPanel::setEmptyText(const Wt::WString &text)
{
  emptyText = text;
  if (contentHidden)
    setAttributeValue("data-empty", emptyText);
}

WTitleTools &WCollapsingContextPanel::titleTools()
{
  return *titleBar;
}

void WCollapsingContextPanel::titleButtonClicked()
{
  if (titleBar->takeToolPress())
    return;
  Wt::WWidget *body = layout->count() > 1 ? layout->itemAt(1)->widget() : 0;
  if (!body)
    return;
  if (!collapsed) {
    titleBar->stateButtonSet(Folded);
    body->animateHide(*animation);
    setHeight(Wt::WLength(kFoldedHeight));
  } else {
    titleBar->stateButtonSet(Open);
    if (!contentHidden)
      body->animateShow(*animation);
    setHeight(Wt::WLength(heightType == HeightAdaptive ? lastHeight : fixedHeight));
  }
  collapsed = !collapsed;
}

void WCollapsingContextPanel::layoutSizeChanged(int, int height)
{
  if (heightType != HeightAdaptive || !content)
    return;
  if (content->isHidden()) {
    if (height < kSmallestOpen)
      return;
    titleBar->stateButtonSet(Open);
    content->animateShow(*animation);
    setHeight(Wt::WLength(height));
  } else if (height < kSmallestOpen) {
    titleBar->stateButtonSet(Folded);
    content->animateHide(*animation);
    setHeight(Wt::WLength(kFoldedHeight));
  } else {
    setPanelHeight(height);
    lastHeight = height;
  }
}

void WCollapsingContextPanel::setPanelHeight(int height)
{
  // A panel that hears of its own resize would resize itself again.
  setLayoutSizeAware(false);
  setHeight(Wt::WLength(height));
  setLayoutSizeAware(true);
}
