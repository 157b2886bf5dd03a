// SPDX-License-Identifier: MIT
#ifndef WT_WVBOXLAYOUT_H_
#define WT_WVBOXLAYOUT_H_

#include <Wt/WBoxLayout>

namespace Wt
{

/// Items in a column.
class WVBoxLayout : public WBoxLayout
{
public:
  explicit WVBoxLayout(WWidget *parent = nullptr) : WBoxLayout(TopToBottom, parent) {}
};

} // namespace Wt

#endif // WT_WVBOXLAYOUT_H_
