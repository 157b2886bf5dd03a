// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTITLE_TOOLS_H_
#define WIDGETS_WTITLE_TOOLS_H_

#include <Wt/WContainerWidget>
#include <Wt/WEvent>

/// A panel's title line that takes small tools at its end. What the mouse does with a tool means the tool,
/// not the title.
class WTitleTools : public Wt::WContainerWidget
{
public:
  explicit WTitleTools(Wt::WContainerWidget *parent = 0) : Wt::WContainerWidget(parent) {}

  /// Adds the tool, or takes it as such if it is in the title already. The title owns it.
  void addTool(Wt::WInteractWidget *tool);

  /// Whether the mouse went up on a tool, to be asked once by the title's handler of mouseWentUp().
  bool takeToolPress();

private:
  void toolPressed() { pressed = true; }

  bool pressed = false;
};

#endif // WIDGETS_WTITLE_TOOLS_H_
