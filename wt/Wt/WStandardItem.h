// SPDX-License-Identifier: MIT
#ifndef WT_WSTANDARD_ITEM_H_
#define WT_WSTANDARD_ITEM_H_

#include <Wt/WGlobal>
#include <Wt/WString>
#include <boost/any.hpp>
#include <memory>

namespace Wt
{

class WModelIndex;
class WStandardItemModel;

namespace Engine
{
class ItemCell;
}

/// One cell of a WStandardItemModel. The model owns the items that were put into it.
class WStandardItem
{
public:
  WStandardItem();
  explicit WStandardItem(const WString &text);
  WStandardItem(const WStandardItem &) = delete;
  WStandardItem &operator=(const WStandardItem &) = delete;
  virtual ~WStandardItem();

  void setText(const WString &text);
  WString text() const;
  void setStyleClass(const WString &styleClass);
  WString styleClass() const;
  void setToolTip(const WString &toolTip);
  WString toolTip() const;
  void setFlags(WFlags<ItemFlag> flags);
  WFlags<ItemFlag> flags() const;

  /// EditRole and DisplayRole are one value.
  virtual void setData(const boost::any &data, int role = UserRole);
  virtual boost::any data(int role = UserRole) const;

  WStandardItemModel *model() const { return model_; }
  /// -1 outside of a model.
  int row() const;
  int column() const;
  WModelIndex index() const;

private:
  friend class WStandardItemModel;
  friend class Engine::ItemCell;

  void changed();

  std::unique_ptr<Engine::ItemCell> cell_;
  WStandardItemModel *model_ = nullptr;
  /// Where the model last saw the item.
  mutable int row_ = -1;
  mutable int column_ = -1;
};

} // namespace Wt

#endif // WT_WSTANDARD_ITEM_H_
