// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WUINT32_ZEL_H_
#define WIDGETS_WUINT32_ZEL_H_

#include "WWidgetZel.h"

#include <Wt/WText>

/// Shows a number of 32 bits, or a multiple of it.
class WUInt32Zel : public Wt::WText, public WWidgetZel
{
public:
  WUInt32Zel(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

  /// Records that differ show 0 here, and nothing after a bulk read.
  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;

  /// The number that was last read or set; 0 where records differ or a read failed.
  unsigned int getValue() const { return value; }
  /// Shows a number as it is, whatever the scaling.
  void setValue(unsigned int number);
  /// From now on a read shows the number times `factor`, with one decimal.
  void setDisplayScaling(double factor);

private:
  Wt::WString scaledText() const;

  bool scalingEnabled;
  double displayScaling;
  unsigned int value;
};

#endif // WIDGETS_WUINT32_ZEL_H_
