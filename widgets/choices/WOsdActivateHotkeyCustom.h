// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WOSD_ACTIVATE_HOTKEY_CUSTOM_H_
#define WIDGETS_WOSD_ACTIVATE_HOTKEY_CUSTOM_H_

#include "WWidgetZel.h"

#include <Wt/WContainerWidget>
#include <array>

class WKeyCodeSelector;

/**
 * A sequence of one or two keys that opens the on-screen display, or none. The store keeps it as an object
 * with "sequence", two key codes, and "length", the number of them that count.
 *
 * It takes part in the requests of many widgets only: `params` and the rows of `response` are that object.
 */
class WOsdActivateHotkeyCustom : public Wt::WContainerWidget, public WWidgetZel
{
public:
  WOsdActivateHotkeyCustom(const char *resource, const char *param, bool indexed,
                           Wt::WContainerWidget *parent = 0);

  bool isValid() const { return true; }
  void setEnabled(bool enabled);
  void setWidth(const Wt::WLength &width);
  bool hasFocus() const override;

  /// Does nothing, and fails.
  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  /// A single key comes first, whichever selector it is chosen in.
  void setZelParam(json_t *params) override;
  /// Records that differ show no keys.
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;
  virtual void contentChangedHandler();

private:
  using Keys = std::array<unsigned char, 2>;

  WKeyCodeSelector *addSelector(Wt::WContainerWidget *cell);
  Agreement extractKeys(json_t *response, const std::vector<unsigned int> &indexes, Keys &keys) const;

  WKeyCodeSelector *first;
  WKeyCodeSelector *second;
};

#endif // WIDGETS_WOSD_ACTIVATE_HOTKEY_CUSTOM_H_
