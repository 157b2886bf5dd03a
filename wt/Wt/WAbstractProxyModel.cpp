// SPDX-License-Identifier: MIT
#include <Wt/WAbstractProxyModel>

namespace Wt
{

WAbstractProxyModel::WAbstractProxyModel(WObject *parent) : WAbstractItemModel(parent) {}

WAbstractProxyModel::~WAbstractProxyModel() = default;

void WAbstractProxyModel::setSourceModel(WAbstractItemModel *sourceModel)
{
  sourceDestroyed_.disconnect();
  sourceModel_ = sourceModel;
  if (sourceModel_)
    sourceDestroyed_ = sourceModel_->destroyed().connect(this, &WAbstractProxyModel::forgetSourceModel);
}

void WAbstractProxyModel::forgetSourceModel()
{
  sourceModel_ = nullptr;
  sourceModelDestroyed();
}

void WAbstractProxyModel::sourceModelDestroyed()
{
  reset();
}

boost::any WAbstractProxyModel::data(const WModelIndex &proxyIndex, int role) const
{
  return sourceModel_ ? sourceModel_->data(mapToSource(proxyIndex), role) : boost::any();
}

bool WAbstractProxyModel::setData(const WModelIndex &proxyIndex, const boost::any &value, int role)
{
  return sourceModel_ && sourceModel_->setData(mapToSource(proxyIndex), value, role);
}

WFlags<ItemFlag> WAbstractProxyModel::flags(const WModelIndex &proxyIndex) const
{
  return sourceModel_ ? sourceModel_->flags(mapToSource(proxyIndex)) : WFlags<ItemFlag>();
}

boost::any WAbstractProxyModel::headerData(int section, Orientation orientation, int role) const
{
  if (!sourceModel_)
    return boost::any();
  if (orientation == Vertical)
    section = mapToSource(index(section, 0)).row();
  return sourceModel_->headerData(section, orientation, role);
}

void *WAbstractProxyModel::toRawIndex(const WModelIndex &proxyIndex) const
{
  return sourceModel_ ? sourceModel_->toRawIndex(mapToSource(proxyIndex)) : nullptr;
}

WModelIndex WAbstractProxyModel::fromRawIndex(void *rawIndex) const
{
  return sourceModel_ ? mapFromSource(sourceModel_->fromRawIndex(rawIndex)) : WModelIndex();
}

} // namespace Wt
