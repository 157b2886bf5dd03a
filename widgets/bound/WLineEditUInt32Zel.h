// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WLINE_EDIT_UINT32_ZEL_H_
#define WIDGETS_WLINE_EDIT_UINT32_ZEL_H_

#include "WEditZel.h"
#include "WLineEditPlus.h"

/// A line edit of a number of 32 bits, in decimal. What is no number counts as 0; a validator may forbid it.
class WLineEditUInt32Zel : public WEditZel<WLineEditPlus, unsigned int>
{
public:
  WLineEditUInt32Zel(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

  /// Shows a number, which does not count as a change.
  void setValue(unsigned int value);

protected:
  Wt::WString textOf(const unsigned int &value) const override;
  /// Shows nine digits at most.
  Wt::WString textOfRead(const unsigned int &value) const override;
  unsigned int valueOfText() const override;
};

#endif // WIDGETS_WLINE_EDIT_UINT32_ZEL_H_
