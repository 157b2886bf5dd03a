// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WUSR_H_
#define WIDGETS_WUSR_H_

#include "WComboBoxZelDynamic.h"

/// A choice of a user, by name, for a parameter that holds the index of the user's record; 0 is nobody.
class WUsr : public WComboBoxZelDynamic
{
public:
  WUsr(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

protected:
  std::list<std::string> choicesIn(json_t *response) const override;
  Agreement readChoice(const std::vector<unsigned int> &indexes, std::string &choice,
                       std::vector<std::string> &errors) const override;
  Agreement extractChoice(json_t *response, const std::vector<unsigned int> &indexes,
                          std::string &choice) const override;
  bool writeChoice(const std::vector<unsigned int> &records, const std::string &choice,
                   std::vector<std::string> &errors) const override;
  void addChoice(json_t *params, const std::string &choice) const override;
};

#endif // WIDGETS_WUSR_H_
