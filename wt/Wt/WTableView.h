// SPDX-License-Identifier: MIT
#ifndef WT_WTABLEVIEW_H_
#define WT_WTABLEVIEW_H_

#include <Wt/WAbstractItemView>

namespace Wt
{

/// A list of a model's rows, of which only those in sight are rendered. It scrolls inside: give it a size or
/// a layout.
class WTableView : public WAbstractItemView
{
public:
  explicit WTableView(WContainerWidget *parent = nullptr);
  ~WTableView() override;

  void scrollTo(const WModelIndex &index, ScrollHint hint = EnsureVisible) override;
};

} // namespace Wt

#endif // WT_WTABLEVIEW_H_
