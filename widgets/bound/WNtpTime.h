// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WNTP_TIME_H_
#define WIDGETS_WNTP_TIME_H_

#include "WWidgetZel.h"

#include <Wt/WText>

/// Shows the time of one switch, which the store counts in seconds since 1970, in UTC; blank for several
/// switches and for 0.
class WNtpTime : public Wt::WText, public WWidgetZel
{
public:
  WNtpTime(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;

private:
  bool isOfOneRecord(const std::vector<unsigned int> &indexes) const
  {
    return !indexed || indexes.size() == 1;
  }
  void show(unsigned int seconds);
};

#endif // WIDGETS_WNTP_TIME_H_
