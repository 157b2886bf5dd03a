// SPDX-License-Identifier: MIT
#ifndef WT_WCONTAINERWIDGET_H_
#define WT_WCONTAINERWIDGET_H_

#include <Wt/WInteractWidget>

namespace Wt
{

class WLayout;

/// Holds other widgets, one after another or in a layout. Owns them.
class WContainerWidget : public WInteractWidget
{
public:
  enum Overflow { OverflowVisible, OverflowAuto, OverflowHidden, OverflowScroll };

  explicit WContainerWidget(WContainerWidget *parent = nullptr);
  ~WContainerWidget() override;

  /// Takes the widget over from its present parent; one that is already here stays where it is.
  virtual void addWidget(WWidget *widget);
  virtual void insertWidget(int index, WWidget *widget);
  virtual void insertBefore(WWidget *widget, WWidget *before);
  /// Takes the widget out of its parent, whichever that is; the caller owns it then.
  virtual void removeWidget(WWidget *widget);
  /// Deletes all children and the layout.
  virtual void clear();
  virtual int count() const;
  virtual WWidget *widget(int index) const;
  /// -1 if the widget is not here.
  virtual int indexOf(WWidget *widget) const;

  /// Takes the layout over and deletes the former one. Only what is in the layout is shown then.
  void setLayout(WLayout *layout);
  /// The alignment has no effect.
  void setLayout(WLayout *layout, WFlags<AlignmentFlag> alignment);
  WLayout *layout() const { return layout_; }

  /// The horizontal part holds for inline and block children; the vertical one only in a table's cells.
  void setContentAlignment(WFlags<AlignmentFlag> alignment);
  WFlags<AlignmentFlag> contentAlignment() const { return alignment_; }

  void setPadding(const WLength &padding, WFlags<Side> sides = All);
  WLength padding(Side side) const;

  void setOverflow(Overflow overflow, WFlags<Orientation> orientation = (Horizontal | Vertical));

protected:
  const char *domTag() const override;
  void render(Dom::Element &e) override;
  void renderContents(Dom::Element &e) override;
  std::vector<WWidget *> renderedChildren() override;
  const char *displayStyle() const override;
  void addOwnClasses(std::string &classes) const override;
  void removeChild(WObject *child) override;

  /// `child` has come to be at `index`, or has left. Bases do nothing.
  virtual void childAdded(int index, WWidget *child);
  virtual void childRemoved(int index, WWidget *child);

  /// The children in their order, shown or not.
  const std::vector<WWidget *> &widgets() const { return widgets_; }

private:
  friend class WLayout;
  struct Frame;

  Frame &frame();
  void renderFrame(Dom::Element &e);
  void layoutGone();

  std::vector<WWidget *> widgets_;
  WLayout *layout_ = nullptr;
  std::unique_ptr<Frame> frame_; ///< padding and overflow
  WFlags<AlignmentFlag> alignment_;
};

} // namespace Wt

#endif // WT_WCONTAINERWIDGET_H_
