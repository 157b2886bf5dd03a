// SPDX-License-Identifier: MIT
#ifndef WIDGETS_CHOICES_WMANAGEMENTMODE_H_
#define WIDGETS_CHOICES_WMANAGEMENTMODE_H_

#include "WWidgetZel.h"

#include <Wt/WComboBox>

/// Whether the system is under an external manager. Only the way out can be written.
class WManagementMode : public Wt::WComboBox, public WWidgetZel
{
public:
  WManagementMode(const char *resource, const char *param, Wt::WContainerWidget *parent = 0);

  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  bool writeToDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors) override;
  void setZelParam(json_t *params) override;
  /// Does nothing.
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;
  virtual void contentChangedHandler();
};

#endif // WIDGETS_CHOICES_WMANAGEMENTMODE_H_
