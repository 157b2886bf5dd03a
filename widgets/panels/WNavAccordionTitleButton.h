// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WNAV_ACCORDION_TITLE_BUTTON_H_
#define WIDGETS_WNAV_ACCORDION_TITLE_BUTTON_H_

#include <Wt/WContainerWidget>
#include <Wt/WString>

class WFoldTitle;
class WNavAccordionStdCell;

/// The title of an action bar's section; a click folds the section's body, each section for itself.
class WNavAccordionTitleButton : public Wt::WContainerWidget
{
public:
  /// `cell` is the body; it stays its owner's.
  WNavAccordionTitleButton(const Wt::WString &title, WNavAccordionStdCell *cell,
                           Wt::WContainerWidget *parent = 0);

private:
  void titleButtonClicked();

  WNavAccordionStdCell *cell;
  WFoldTitle *line;
};

#endif // WIDGETS_WNAV_ACCORDION_TITLE_BUTTON_H_
