// SPDX-License-Identifier: MIT
#ifndef WIDGETS_DERIVED_WMGRCOMMSTATUS_H_
#define WIDGETS_DERIVED_WMGRCOMMSTATUS_H_

#include <Wt/WText>

/// Shows how it stands with the link to one of the managers.
class WMgrCommStatus : public Wt::WText
{
public:
  enum MgrInstance { Primary = 0, Auxiliary = 1 };

  explicit WMgrCommStatus(MgrInstance instance, Wt::WContainerWidget *parent = 0);

  void readFromDatabase();

private:
  const MgrInstance instance;
};

#endif // WIDGETS_DERIVED_WMGRCOMMSTATUS_H_
