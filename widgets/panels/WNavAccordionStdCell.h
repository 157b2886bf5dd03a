// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WNAV_ACCORDION_STD_CELL_H_
#define WIDGETS_WNAV_ACCORDION_STD_CELL_H_

#include <Wt/WFlags>
#include <Wt/WPushButton>
#include <Wt/WString>
#include <Wt/WTable>

namespace Wt
{
class WLink;
}

/// The body of an action bar's section: one button and the sentence that explains it.
class WNavAccordionStdCell : public Wt::WTable
{
public:
  WNavAccordionStdCell(const Wt::WString &buttonText, const Wt::WString &description,
                       Wt::WContainerWidget *parent = 0);

  /// Connects the button's click to a method.
  template <class Receiver, class Base> void connectAction(Receiver *object, void (Base::*method)())
  {
    button->clicked().connect(object, method);
  }

  void enableActionButton();
  void disableActionButton();

  /// Makes the button a link, as for a download.
  void linkSet(Wt::WLink &link);

private:
  Wt::WPushButton *button;
};

#endif // WIDGETS_WNAV_ACCORDION_STD_CELL_H_
