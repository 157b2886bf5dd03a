// SPDX-License-Identifier: MIT
#ifndef WT_WBOXLAYOUT_H_
#define WT_WBOXLAYOUT_H_

#include <Wt/WLayout>
#include <Wt/WLength>

namespace Wt
{

/// Items in a row or a column.
class WBoxLayout : public WLayout
{
public:
  enum Direction { LeftToRight, RightToLeft, TopToBottom, BottomToTop };

  /// `parent`, if given, must be a container.
  explicit WBoxLayout(Direction direction, WWidget *parent = nullptr);
  ~WBoxLayout() override;

  void addItem(WLayoutItem *item) override;
  void removeItem(WLayoutItem *item) override;
  WLayoutItem *itemAt(int index) const override;
  int count() const override;
  void clear() override;

  void setDirection(Direction direction);
  Direction direction() const { return direction_; }
  /// Pixels between items; 6 by default.
  void setSpacing(int size);
  int spacing() const { return spacing_; }

  /// Stretch 0 means the preferred size; positive ones share the rest in proportion; if all are 0, all share
  /// equally. Without alignment (or with AlignJustify) the item fills its cell.
  void addWidget(WWidget *widget, int stretch = 0, WFlags<AlignmentFlag> alignment = WFlags<AlignmentFlag>());
  void addLayout(WLayout *layout, int stretch = 0, WFlags<AlignmentFlag> alignment = WFlags<AlignmentFlag>());
  void addSpacing(const WLength &size);
  void addStretch(int stretch = 0);
  void insertWidget(int index, WWidget *widget, int stretch = 0,
                    WFlags<AlignmentFlag> alignment = WFlags<AlignmentFlag>());
  void insertLayout(int index, WLayout *layout, int stretch = 0,
                    WFlags<AlignmentFlag> alignment = WFlags<AlignmentFlag>());
  void insertSpacing(int index, const WLength &size);
  void insertStretch(int index, int stretch = 0);

  bool setStretchFactor(WWidget *widget, int stretch);
  bool setStretchFactor(WLayout *layout, int stretch);

  /// Lets the user move the border between the item `index` and the next one. The item must exist.
  void setResizable(int index, bool enabled = true, const WLength &initialSize = WLength::Auto);
  bool isResizable(int index) const;

protected:
  const char *displayStyle() const override { return "flex"; }
  void renderItems(Dom::Element &e) override;

private:
  struct Place;

  void insertPlace(int index, WLayoutItem *item, int stretch, WFlags<AlignmentFlag> alignment,
                   const WLength &gap = WLength::Auto);
  Place *placeOf(const WLayoutItem *item);
  bool vertical() const { return direction_ == TopToBottom || direction_ == BottomToTop; }
  void renderPlace(const Place &place, bool anyStretch, Dom::Document &document,
                   std::vector<Dom::Element *> &children);
  void renderHandle(const Place &place, Dom::Document &document, std::vector<Dom::Element *> &children);

  std::vector<Place> places_;
  Direction direction_;
  int spacing_ = 6;
};

} // namespace Wt

#endif // WT_WBOXLAYOUT_H_
