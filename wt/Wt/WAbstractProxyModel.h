// SPDX-License-Identifier: MIT
#ifndef WT_WABSTRACT_PROXY_MODEL_H_
#define WT_WABSTRACT_PROXY_MODEL_H_

#include <Wt/WAbstractItemModel>

namespace Wt
{

/// Shows another model's data in another arrangement. Does not own the source model.
class WAbstractProxyModel : public WAbstractItemModel
{
public:
  explicit WAbstractProxyModel(WObject *parent = nullptr);
  ~WAbstractProxyModel() override;

  virtual WModelIndex mapFromSource(const WModelIndex &sourceIndex) const = 0;
  virtual WModelIndex mapToSource(const WModelIndex &proxyIndex) const = 0;
  virtual void setSourceModel(WAbstractItemModel *sourceModel);
  WAbstractItemModel *sourceModel() const { return sourceModel_; }

  using WAbstractItemModel::data;
  boost::any data(const WModelIndex &proxyIndex, int role = DisplayRole) const override;
  using WAbstractItemModel::setData;
  bool setData(const WModelIndex &proxyIndex, const boost::any &value, int role = EditRole) override;
  WFlags<ItemFlag> flags(const WModelIndex &proxyIndex) const override;
  boost::any headerData(int section, Orientation orientation = Horizontal,
                        int role = DisplayRole) const override;
  void *toRawIndex(const WModelIndex &proxyIndex) const override;
  WModelIndex fromRawIndex(void *rawIndex) const override;

protected:
  /// The source model is being deleted and must not be asked any more.
  virtual void sourceModelDestroyed();

private:
  void forgetSourceModel();

  Signals::connection sourceDestroyed_;
  WAbstractItemModel *sourceModel_ = nullptr;
};

} // namespace Wt

#endif // WT_WABSTRACT_PROXY_MODEL_H_
