// SPDX-License-Identifier: MIT
#ifndef WIDGETS_BOUND_WPASSWORDZEL_H_
#define WIDGETS_BOUND_WPASSWORDZEL_H_

#include "WLineEditZel.h"

/// A password that is written and never read: after every read the field is blank.
class WPasswordZel : public WLineEditZel
{
public:
  WPasswordZel(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;
};

#endif // WIDGETS_BOUND_WPASSWORDZEL_H_
