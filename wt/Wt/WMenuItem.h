// SPDX-License-Identifier: MIT
#ifndef WT_WMENUITEM_H_
#define WT_WMENUITEM_H_

#include <Wt/WContainerWidget>

namespace Wt
{

class WTabWidget;

/// The tab of one page of a tab widget. It owns contents that the page has not loaded yet.
class WMenuItem : public WContainerWidget
{
public:
  enum LoadPolicy { LazyLoading, PreLoading };

  explicit WMenuItem(const WString &text, WWidget *contents = nullptr, LoadPolicy policy = LazyLoading);
  ~WMenuItem() override;

  /// Plain text.
  void setText(const WString &text);
  const WString &text() const { return text_; }

  /// What was given to the constructor; null once it was deleted.
  WWidget *contents() const { return contents_; }

  /// Makes this the current item of its tab widget.
  void select();

  /// The current tab gives its place to another one when it is hidden or disabled.
  void setHidden(bool hidden, const WAnimation &animation = WAnimation()) override;
  void setDisabled(bool disabled) override;

  void refresh() override;

protected:
  const char *domTag() const override;
  const char *displayStyle() const override;
  void render(Dom::Element &e) override;
  void renderContents(Dom::Element &e) override;
  void addOwnClasses(std::string &classes) const override;
  Dom::Element *focusElement() const override { return anchor_; }
  void propagateSetEnabled(bool enabled) override;
  void domGone(Dom::Element &gone) noexcept override;

private:
  friend class WTabWidget;

  bool isLoaded() const { return loaded_; }
  void load();
  /// Gives the contents back to the caller, out of the tree.
  WWidget *release();
  void setSelected(bool selected);
  void contentsGone();

  WString text_;
  WTabWidget *tabs_ = nullptr;
  WWidget *contents_;
  WContainerWidget *panel_; ///< holds the contents once they are loaded; the tab widget's stack takes it over
  Signals::connection contentsDestroyed_;
  Dom::Element *anchor_ = nullptr;
  bool panelTaken_ = false;
  bool loaded_ = false;
  bool selected_ = false;
};

} // namespace Wt

#endif // WT_WMENUITEM_H_
