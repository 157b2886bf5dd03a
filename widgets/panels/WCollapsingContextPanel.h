// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCOLLAPSING_CONTEXT_PANEL_H_
#define WIDGETS_WCOLLAPSING_CONTEXT_PANEL_H_

#include <Wt/WAnimation>
#include <Wt/WContainerWidget>
#include <Wt/WFlags>
#include <Wt/WGlobal>
#include <Wt/WString>
#include <memory>

namespace Wt
{
class WVBoxLayout;
}

class WCollapsingContextPanelTitleBar;
class WTitleTools;

/**
 * A titled panel that a click on its title folds down to the title.
 *
 * An adaptive panel also follows the height that its layout gives it, and folds itself where that is too
 * small to show anything. What the user folded by a click and what was folded for lack of room are told
 * apart: `collapsed` records only clicks.
 */
class WCollapsingContextPanel : public Wt::WContainerWidget
{
public:
  enum HeightType {
    HeightFixed = 0,   ///< the constructor's height when open
    HeightAdaptive = 1 ///< the height that the layout gives
  };

  /// `height` in pixels.
  WCollapsingContextPanel(const Wt::WString &title, HeightType heightType, int height,
                          Wt::WContainerWidget *parent = 0);
  ~WCollapsingContextPanel() override;

  /// Gives the panel its content, which it then owns.
  virtual void setContent(Wt::WWidget *widget, int stretch, Wt::WFlags<Wt::AlignmentFlag> alignment);

  /// Hides the content while there is nothing to show; opening the panel does not bring it back.
  virtual void hideContent();
  virtual void showContent();

  /// What stands in the middle while the content is hidden.
  void setEmptyText(const Wt::WString &text);

protected:
  /// The title line, for tools at its end.
  WTitleTools &titleTools();

  void layoutSizeChanged(int width, int height) override;

private:
  void titleButtonClicked();
  void setPanelHeight(int height);

  Wt::WVBoxLayout *layout;
  std::unique_ptr<Wt::WAnimation> animation;
  WCollapsingContextPanelTitleBar *titleBar;
  Wt::WWidget *content;
  HeightType heightType;
  Wt::WString emptyText;
  int fixedHeight;
  int lastHeight;
  bool collapsed;
  bool contentHidden;
};

#endif // WIDGETS_WCOLLAPSING_CONTEXT_PANEL_H_
