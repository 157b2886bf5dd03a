// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WANCHOR_ZEL_H_
#define WIDGETS_WANCHOR_ZEL_H_

#include "WWidgetZel.h"

#include <Wt/WAnchor>

/// Shows an address as a link to its interface, in a new window.
class WAnchorZel : public Wt::WAnchor, public WWidgetZel
{
public:
  WAnchorZel(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  /// Unlike readFromDatabase(), it sets the link after a failure as well.
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;

private:
  void show(const std::string &address);
};

#endif // WIDGETS_WANCHOR_ZEL_H_
