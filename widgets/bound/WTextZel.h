// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_ZEL_H_
#define WIDGETS_WTEXT_ZEL_H_

#include "WWidgetZel.h"

#include <Wt/WText>

/// Shows a text parameter, as plain text; blank where records differ and after a failure.
class WTextZel : public Wt::WText, public WWidgetZel
{
public:
  WTextZel(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;

protected:
  /// The text that shows a value.
  virtual Wt::WString textOf(const std::string &value) const;
  /// The same in readFromDatabase(), where records that differ have an empty one.
  virtual Wt::WString textOfRead(const std::string &value) const;
};

#endif // WIDGETS_WTEXT_ZEL_H_
