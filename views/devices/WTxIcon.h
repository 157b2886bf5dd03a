// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WTXICON_H_
#define VIEWS_DEVICES_WTXICON_H_

#include "WWidgetZel.h"

#include <Wt/WStackedWidget>

namespace Wt
{
class WFileResource;
class WImage;
} // namespace Wt

/// The icon of transmitters. A click lets the user choose another one.
class WTxIcon : public Wt::WStackedWidget, public WWidgetZel
{
public:
  WTxIcon(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

  bool hasFocus() const override { return false; }
  void showSelectedIcon();
  /// Where transmitters differ, and where there are none.
  void showUnknown();

  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  bool writeToDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors) override;
  void setZelParam(json_t *params) override;
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;
  void clickedHandler();

private:
  void show(Agreement agreement);

  unsigned int iconIndex;
  Wt::WFileResource *file; ///< of the icon that shows
  Wt::WImage *icon;
};

#endif // VIEWS_DEVICES_WTXICON_H_
