// SPDX-License-Identifier: MIT
#include "WTitleTools.h"

void WTitleTools::addTool(Wt::WInteractWidget *tool)
{
  if (tool->parent() != this)
    addWidget(tool);
  // A tool hears of the mouse before the title that it stands in.
  tool->mouseWentUp().connect(this, &WTitleTools::toolPressed);
}

bool WTitleTools::takeToolPress()
{
  const bool onTool = pressed;
  pressed = false;
  return onTool;
}
