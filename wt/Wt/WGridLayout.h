// SPDX-License-Identifier: MIT
#ifndef WT_WGRIDLAYOUT_H_
#define WT_WGRIDLAYOUT_H_

#include <Wt/WLayout>
#include <Wt/WLength>

namespace Wt
{

/// Items in rows and columns. Setters grow the grid.
class WGridLayout : public WLayout
{
public:
  /// `parent`, if given, must be a container.
  explicit WGridLayout(WWidget *parent = nullptr);
  ~WGridLayout() override;

  /// Adds the item in a row of its own below the others.
  void addItem(WLayoutItem *item) override;
  void removeItem(WLayoutItem *item) override;
  WLayoutItem *itemAt(int index) const override;
  int count() const override;
  void clear() override;

  /// Replaces what stands at (row, column). Without alignment (or with AlignJustify) the item fills its cell.
  void addItem(WLayoutItem *item, int row, int column, int rowSpan = 1, int columnSpan = 1,
               WFlags<AlignmentFlag> alignment = WFlags<AlignmentFlag>());
  void addWidget(WWidget *widget, int row, int column,
                 WFlags<AlignmentFlag> alignment = WFlags<AlignmentFlag>());
  void addWidget(WWidget *widget, int row, int column, int rowSpan, int columnSpan,
                 WFlags<AlignmentFlag> alignment = WFlags<AlignmentFlag>());
  void addLayout(WLayout *layout, int row, int column,
                 WFlags<AlignmentFlag> alignment = WFlags<AlignmentFlag>());
  void addLayout(WLayout *layout, int row, int column, int rowSpan, int columnSpan,
                 WFlags<AlignmentFlag> alignment = WFlags<AlignmentFlag>());

  /// Pixels; 6 by default.
  void setHorizontalSpacing(int size);
  int horizontalSpacing() const { return horizontalSpacing_; }
  void setVerticalSpacing(int size);
  int verticalSpacing() const { return verticalSpacing_; }

  int rowCount() const { return static_cast<int>(rows_.size()); }
  int columnCount() const { return static_cast<int>(columns_.size()); }
  void setRowStretch(int row, int stretch);
  int rowStretch(int row) const;
  void setColumnStretch(int column, int stretch);
  int columnStretch(int column) const;

  /// Lets the user move the border between this row or column and the next.
  void setRowResizable(int row, bool enabled = true, const WLength &initialSize = WLength::Auto);
  bool rowIsResizable(int row) const;
  void setColumnResizable(int column, bool enabled = true, const WLength &initialSize = WLength::Auto);
  bool columnIsResizable(int column) const;

protected:
  const char *displayStyle() const override { return "grid"; }
  void renderItems(Dom::Element &e) override;

private:
  struct Place;
  struct Track {
    int stretch = 0;
    bool resizable = false;
    WLength size; ///< initial
  };

  static Track &track(std::vector<Track> &tracks, int index);
  static std::string tracksText(const std::vector<Track> &tracks, bool rows);
  void renderPlace(const Place &place, Dom::Document &document, std::vector<Dom::Element *> &children);
  bool trackHidden(std::size_t track, bool row) const;
  void renderHandles(const std::vector<Track> &tracks, bool rows, Dom::Document &document,
                     std::vector<Dom::Element *> &children);

  std::vector<Place> places_;
  std::vector<Track> rows_;
  std::vector<Track> columns_;
  int horizontalSpacing_ = 6;
  int verticalSpacing_ = 6;
};

} // namespace Wt

#endif // WT_WGRIDLAYOUT_H_
