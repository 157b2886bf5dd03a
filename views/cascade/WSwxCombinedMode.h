// SPDX-License-Identifier: MIT
#ifndef VIEWS_CASCADE_WSWXCOMBINEDMODE_H_
#define VIEWS_CASCADE_WSWXCOMBINEDMODE_H_

#include "WWidgetZel.h"

#include <Wt/WComboBox>

/// Whether this switch is a master of its own or a slave under a manager. A third item tells of anything
/// else, and only the way to a master of its own can be written.
class WSwxCombinedMode : public Wt::WComboBox, public WWidgetZel
{
public:
  explicit WSwxCombinedMode(Wt::WContainerWidget *parent = 0);

  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  bool writeToDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors) override;
  /// Does nothing.
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;
  virtual void contentChangedHandler();

private:
  void showThird(const Wt::WString &text);
  void removeThird();

  bool thirdPresent;
};

#endif // VIEWS_CASCADE_WSWXCOMBINEDMODE_H_
