// SPDX-License-Identifier: MIT
#ifndef WT_WHBOXLAYOUT_H_
#define WT_WHBOXLAYOUT_H_

#include <Wt/WBoxLayout>

namespace Wt
{

/// Items in a row.
class WHBoxLayout : public WBoxLayout
{
public:
  explicit WHBoxLayout(WWidget *parent = nullptr) : WBoxLayout(LeftToRight, parent) {}
};

} // namespace Wt

#endif // WT_WHBOXLAYOUT_H_
