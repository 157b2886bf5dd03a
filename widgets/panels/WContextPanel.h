// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCONTEXT_PANEL_H_
#define WIDGETS_WCONTEXT_PANEL_H_

#include <Wt/WContainerWidget>
#include <Wt/WFlags>
#include <Wt/WGlobal>
#include <Wt/WString>

namespace Wt
{
class WVBoxLayout;
}

class WContextPanelTitleBar;
class WTitleTools;

/// A titled panel: a title bar above one content widget.
class WContextPanel : public Wt::WContainerWidget
{
public:
  explicit WContextPanel(const Wt::WString &title, Wt::WContainerWidget *parent = 0);

  /// Gives the panel its content, which it then owns.
  virtual void setContent(Wt::WWidget *widget, int stretch, Wt::WFlags<Wt::AlignmentFlag> alignment);

protected:
  /// The title line, for tools at its end.
  WTitleTools &titleTools();

  void layoutSizeChanged(int width, int height) override;

private:
  Wt::WVBoxLayout *layout;
  WContextPanelTitleBar *titleBar;
  Wt::WWidget *content;
};

#endif // WIDGETS_WCONTEXT_PANEL_H_
