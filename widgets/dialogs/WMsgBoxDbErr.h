// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WMSG_BOX_DB_ERR_H_
#define WIDGETS_WMSG_BOX_DB_ERR_H_

#include <Wt/WDialog>
#include <string>
#include <vector>

/// The report of a failed store operation: what failed, then the store's own messages. Modal; built on the
/// stack, run with exec() and destroyed.
class WMsgBoxDbErr : public Wt::WDialog
{
public:
  enum AccessType { AccessRead = 0, AccessWrite = 1, AccessCreate = 2, AccessDelete = 3, AccessOther = 4 };

  WMsgBoxDbErr(AccessType type, std::vector<std::string> &errors);

private:
  void buttonClickedHandler();
};

#endif // WIDGETS_WMSG_BOX_DB_ERR_H_
