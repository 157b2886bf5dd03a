// SPDX-License-Identifier: MIT
#include "SelectionCommand.h"

#include "WNotice.h"

void SelectionCommand::tell(const Db::Errors &errors) const
{
  WNotice::showError(failure, errors);
}
