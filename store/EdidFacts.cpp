// SPDX-License-Identifier: MIT
#include "EdidFacts.h"

#include "Edid.h"

void EdidFacts_read(char (&block)[kEdidSize], std::string &manufacturer, std::string &productCode,
                    std::string &typeKey)
{
  Edid edid;
  edid.populate(block, kEdidSize);
  edid.manufacturerIdGet(manufacturer);
  edid.productCodeGet(productCode);
  typeKey = edid.isDigital() ? "[RSnnn]DVI" : "[RSnnn]VGA";
}
