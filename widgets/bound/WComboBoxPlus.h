// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCOMBO_BOX_PLUS_H_
#define WIDGETS_WCOMBO_BOX_PLUS_H_

#include <Wt/WComboBox>
#include <string>

/// A combo box whose choices are a constant table, which is not copied.
class WComboBoxPlus : public Wt::WComboBox
{
public:
  /// One choice.
  struct Triplet {
    const char *storeValue; ///< what the store holds for it
    const char *label;      ///< the whole key of its text
    int code;               ///< the value of an enumeration
  };

  /// One item for each of the `count` entries of the table.
  WComboBoxPlus(const Triplet *table, int count, Wt::WContainerWidget *parent = 0);

  /// The store's value of the current item; empty if that is none of the table's.
  virtual std::string selection();
  /// The code of the current item; 0 if that is none of the table's.
  virtual int value();
  /// Selects the first entry of that code. True, and nothing is changed, if there is none.
  virtual bool setCurrentIndexByValue(int code);

protected:
  /// Whether the current item is one of the table's.
  bool hasChoice() const { return currentIndex() >= 0 && currentIndex() < tableCount; }
  /// The entry of a store's value; -1 if there is none.
  int indexOfStoreValue(const std::string &storeValue) const;
  /// Number of entries, which is also the index of an item behind them.
  int entryCount() const { return tableCount; }

private:
  const Triplet *const table;
  const int tableCount;
};

#endif // WIDGETS_WCOMBO_BOX_PLUS_H_
