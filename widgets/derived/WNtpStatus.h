// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WNTP_STATUS_H_
#define WIDGETS_WNTP_STATUS_H_

#include "WTextZel.h"

/// Shows how it stands with a switch's time server.
class WNtpStatus : public WTextZel
{
public:
  WNtpStatus(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

protected:
  Wt::WString textOf(const std::string &value) const override;
};

#endif // WIDGETS_WNTP_STATUS_H_
