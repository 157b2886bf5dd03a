// SPDX-License-Identifier: MIT
#ifndef WT_WCOMBOBOX_H_
#define WT_WCOMBOBOX_H_

#include <Wt/WFormWidget>
#include <Wt/WModelIndex>
#include <vector>

namespace Wt
{

class WAbstractItemModel;

/// A choice of one among several texts: its own list, or a column of a model.
class WComboBox : public WFormWidget
{
public:
  explicit WComboBox(WContainerWidget *parent = nullptr);
  ~WComboBox() override;

  void addItem(const WString &text);
  void insertItem(int index, const WString &text);
  void removeItem(int index);
  void clear();
  int count() const;

  /// -1 if there are no items, or nothing is chosen where that is allowed.
  int currentIndex() const { return currentIndex_; }
  /// An index beyond the end chooses the last item; -1 the first, unless nothing may be chosen. Emits
  /// nothing.
  void setCurrentIndex(int index);
  const WString currentText() const;

  const WString itemText(int index) const;
  void setItemText(int index, const WString &text);
  /// The first item whose text matches, or -1.
  int findText(const WString &text,
               WFlags<MatchFlag> flags = WFlags<MatchFlag>(MatchExactly) | MatchCaseSensitive) const;

  /// The combo does not own the model. Null brings the combo's own list back, empty.
  void setModel(WAbstractItemModel *model);
  /// The model; null while the combo has its own list.
  WAbstractItemModel *model() const { return model_; }
  void setModelColumn(int column);
  int modelColumn() const { return modelColumn_; }

  /// Whether nothing may be chosen.
  void setNoSelectionEnabled(bool enabled);
  bool noSelectionEnabled() const { return noSelectionEnabled_; }

  /// The user has chosen, be it the same item again.
  Signal<int> &activated();
  Signal<WString> &sactivated();

  WString valueText() const override;
  void setValueText(const WString &value) override;
  void refresh() override;

protected:
  const char *domTag() const override;
  void renderContents(Dom::Element &e) override;
  void formValue(Dom::Element &at, const std::string &value) override;
  void domGone(Dom::Element &gone) noexcept override;

private:
  struct Signals;

  Signals &userSignals();
  void tellChoice();
  void itemsInserted(int first, int last);
  void itemsRemoved(int first, int last);
  void rowsInserted(WModelIndex parent, int first, int last);
  void rowsRemoved(WModelIndex parent, int first, int last);
  void modelChanged();
  void modelGone();
  void itemsChanged();
  int validIndex(int index) const;

  std::vector<WString> items_;
  std::vector<Dom::Element *> options_;
  std::unique_ptr<Signals> signals_;
  WAbstractItemModel *model_ = nullptr;
  int modelColumn_ = 0;
  int currentIndex_ = -1;
  bool noSelectionEnabled_ = false;
};

} // namespace Wt

#endif // WT_WCOMBOBOX_H_
