// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCHECK_BOX_ZEL_H_
#define WIDGETS_WCHECK_BOX_ZEL_H_

#include "WWidgetZel.h"

#include <Wt/WCheckBox>

/**
 * A check box of a flag.
 *
 * Where records differ it is partially checked after a read of its own, but unchecked after a bulk read. The
 * user can't choose the partial state.
 */
class WCheckBoxZel : public Wt::WCheckBox, public WWidgetZel
{
public:
  WCheckBoxZel(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  /// A record that fails does not keep the others from being written, and a missing answer is no failure. The
  /// partial state is written as "off".
  bool writeToDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors) override;
  /// The partial state adds nothing.
  void setZelParam(json_t *params) override;
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;
  virtual void contentChangedHandler();

private:
  Agreement readFlags(const std::vector<unsigned int> &indexes, bool &flag,
                      std::vector<std::string> &errors) const;
};

#endif // WIDGETS_WCHECK_BOX_ZEL_H_
