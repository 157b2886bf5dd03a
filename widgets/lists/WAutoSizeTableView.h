// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WAUTO_SIZE_TABLE_VIEW_H_
#define WIDGETS_WAUTO_SIZE_TABLE_VIEW_H_

#include <Wt/WLength>
#include <Wt/WModelIndex>
#include <Wt/WTableView>
#include <cstdint>
#include <vector>

/**
 * A record list that fits its columns to its width: columns that the user has not sized share what the sized
 * ones leave.
 *
 * Column 0 of the model holds the record's store index as an unsigned int; selections are taken and restored
 * by that index, since rows move.
 */
class WAutoSizeTableView : public Wt::WTableView
{
public:
  /// `columnCount` is the number of the model's columns, hidden ones included.
  explicit WAutoSizeTableView(int columnCount, Wt::WContainerWidget *parent = 0);

  virtual void clearSelection();

  /// Selects exactly the rows of these store indexes; an index without a row is passed over.
  virtual void setSelectedZelIndexes(std::vector<unsigned int> &indexes);

  /// Adds to the selection the rows of these store indexes for which `filter(context, index)` is true.
  virtual void setSelectedFilteredZelIndexes(std::vector<unsigned int> &indexes, void *context,
                                             bool (*filter)(void *, Wt::WModelIndex));

  /// The user has dragged a column: it keeps that width, the free columns share the rest.
  virtual void columnResizedHandler(int column, Wt::WLength width);

  /// Fits the columns to a width in pixels. A view too narrow for its sized columns gives the free ones a
  /// negative width, which is passed on.
  virtual void adaptToWidth(int width);

protected:
  void layoutSizeChanged(int width, int height) override;

private:
  void addRowsOf(const std::vector<unsigned int> &indexes, Wt::WModelIndexSet &selection, void *context,
                 bool (*filter)(void *, Wt::WModelIndex));
  void adaptFirstTime(int width);
  void adaptFreeColumns(int width);

  std::int8_t columnCount;
  std::int8_t hiddenColumnCount;
  bool firstAdaptDone;
  std::vector<std::int32_t> columnWidths; ///< pixels; 0: not sized by the user
  int lastWidth;
};

#endif // WIDGETS_WAUTO_SIZE_TABLE_VIEW_H_
