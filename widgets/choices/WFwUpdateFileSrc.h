// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WFW_UPDATE_FILE_SRC_H_
#define WIDGETS_WFW_UPDATE_FILE_SRC_H_

#include "WComboBoxPlus.h"
#include "WLookup.h"

/// Where a firmware file comes from.
class WFwUpdateFileSrc : public WLookup<WFwUpdateFileSrc, WComboBoxPlus>
{
public:
  using WLookup::WLookup;

  /// The word for the current item; empty if there is none.
  Wt::WString valueText() const override;

  static const Triplet sLookup[5];
};

#endif // WIDGETS_WFW_UPDATE_FILE_SRC_H_
