// SPDX-License-Identifier: MIT
#include "view/TableElement.h"

#include <Wt/WTableView>

namespace Wt
{

WTableView::WTableView(WContainerWidget *parent) : WAbstractItemView(parent) {}

WTableView::~WTableView() = default;

void WTableView::scrollTo(const WModelIndex &index, ScrollHint hint)
{
  if (index.isValid())
    Engine::TableElement::of(*this).scrollTo(index.row(), hint);
}

} // namespace Wt
