// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCOMBO_BOX_ZEL_H_
#define WIDGETS_WCOMBO_BOX_ZEL_H_

#include "WComboBoxPlus.h"
#include "WWidgetZel.h"

/**
 * A text parameter that has one of the values of a table.
 *
 * Where records differ, a blank item behind the table's is shown. A value that is not in the table is logged
 * and shown as the first item. A read leaves a combo alone that has the focus, forced or not.
 */
class WComboBoxZel : public WComboBoxPlus, public WWidgetZel
{
public:
  WComboBoxZel(const char *resource, const char *param, bool indexed, const WComboBoxPlus::Triplet *table,
               int count, Wt::WContainerWidget *parent = 0);

  /// Unlike an editor's, a read without records fails.
  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  /// A record that fails does not keep the others from being written; the result is that of the last one.
  /// With the blank item nothing is written, which is a failure without a text.
  bool writeToDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors) override;
  void setZelParam(json_t *params) override;
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;
  virtual void contentChangedHandler();

protected:
  /// Selects the blank item, which is added if it is not there.
  void showBlank();
  /// Takes the blank item away. The current item is not certain afterwards.
  void removeBlank();
  bool isShowingBlank() const { return blankItemPresent && currentIndex() == entryCount(); }

private:
  /// Shows what a read has found. `function` is its name in the log.
  void show(Agreement agreement, const std::string &storeValue, const char *function);

  bool blankItemPresent;
};

#endif // WIDGETS_WCOMBO_BOX_ZEL_H_
