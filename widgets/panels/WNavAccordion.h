// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WNAV_ACCORDION_H_
#define WIDGETS_WNAV_ACCORDION_H_

#include <Wt/WContainerWidget>
#include <Wt/WString>

namespace Wt
{
class WTable;
}

class WNavAccordionStdCell;

/// The action bar at a view's left: sections of a title and a body, which fold independently.
class WNavAccordion : public Wt::WContainerWidget
{
public:
  explicit WNavAccordion(Wt::WContainerWidget *parent = 0);

  /// Adds a section at the end; the bar then owns `cell`.
  virtual void sectionAdd(const Wt::WString &title, WNavAccordionStdCell *cell);

protected:
  void layoutSizeChanged(int width, int height) override;

private:
  Wt::WTable *table;
};

#endif // WIDGETS_WNAV_ACCORDION_H_
