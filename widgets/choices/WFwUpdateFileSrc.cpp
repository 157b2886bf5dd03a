// SPDX-License-Identifier: MIT
#include "WFwUpdateFileSrc.h"

const WComboBoxPlus::Triplet WFwUpdateFileSrc::sLookup[] = {
    {"ftp", "[RSnnn]FTP", 6},   {"http", "[RSnnn]HTTP", 3},       {"https", "[RSnnn]HTTPS", 4},
    {"tftp", "[RSnnn]TFTP", 5}, {"file", "[RSnnn]Local file", 2},
};

Wt::WString WFwUpdateFileSrc::valueText() const
{
  return hasChoice() ? sLookup[currentIndex()].storeValue : "";
}
