// SPDX-License-Identifier: MIT
#include "dom/Document.h"

#include <Wt/WAbstractItemModel>
#include <Wt/WComboBox>
#include <algorithm>
#include <charconv>
#include <functional>

namespace Wt
{

struct WComboBox::Signals {
  explicit Signals(WObject *sender) : activated(sender), sactivated(sender) {}
  Signal<int> activated;
  Signal<WString> sactivated;
  std::vector<Wt::Signals::connection> model;
};

WComboBox::WComboBox(WContainerWidget *parent) : WFormWidget(parent)
{
  setInline(true);
  changed().connect(this, &WComboBox::tellChoice);
}

WComboBox::~WComboBox() = default;

WComboBox::Signals &WComboBox::userSignals()
{
  if (!signals_)
    signals_ = std::make_unique<Signals>(this);
  return *signals_;
}

Signal<int> &WComboBox::activated()
{
  return userSignals().activated;
}

Signal<WString> &WComboBox::sactivated()
{
  return userSignals().sactivated;
}

void WComboBox::tellChoice()
{
  if (!signals_)
    return;
  const int index = currentIndex_;
  const WString text = currentText();
  bool alive = true;
  const auto watch = destroyed().connect(std::bind([&alive] { alive = false; }));
  signals_->activated.emit(index);
  if (alive)
    signals_->sactivated.emit(text);
  watch.disconnect();
}

void WComboBox::addItem(const WString &text)
{
  insertItem(count(), text);
}

void WComboBox::insertItem(int index, const WString &text)
{
  if (index < 0 || index > count())
    return;
  if (model_) {
    if (model_->insertRow(index))
      setItemText(index, text);
    return;
  }
  items_.insert(items_.begin() + index, text);
  itemsInserted(index, index);
}

void WComboBox::removeItem(int index)
{
  if (index < 0 || index >= count())
    return;
  if (model_) {
    model_->removeRow(index);
    return;
  }
  items_.erase(items_.begin() + index);
  itemsRemoved(index, index);
}

void WComboBox::clear()
{
  const int all = count();
  if (all == 0)
    return;
  if (model_) {
    model_->removeRows(0, all);
    return;
  }
  items_.clear();
  itemsRemoved(0, all - 1);
}

int WComboBox::count() const
{
  return model_ ? model_->rowCount() : static_cast<int>(items_.size());
}

int WComboBox::validIndex(int index) const
{
  const int last = count() - 1;
  if (last < 0 || (index < 0 && noSelectionEnabled_))
    return -1;
  return std::clamp(index, 0, last);
}

void WComboBox::setCurrentIndex(int index)
{
  currentIndex_ = validIndex(index);
  revalidate();
  repaint();
}

const WString WComboBox::currentText() const
{
  return currentIndex_ < 0 ? WString() : itemText(currentIndex_);
}

const WString WComboBox::itemText(int index) const
{
  if (index < 0 || index >= count())
    return WString();
  return model_ ? asString(model_->data(index, modelColumn_)) : items_[static_cast<std::size_t>(index)];
}

void WComboBox::setItemText(int index, const WString &text)
{
  if (index < 0 || index >= count())
    return;
  if (model_)
    model_->setData(index, modelColumn_, boost::any(text));
  else
    items_[static_cast<std::size_t>(index)] = text;
  repaint();
}

namespace
{

std::string folded(const std::string &text, bool caseSensitive)
{
  std::string result = text;
  if (!caseSensitive)
    for (char &c : result)
      if (c >= 'A' && c <= 'Z')
        c = static_cast<char>(c - 'A' + 'a');
  return result;
}

bool endsWith(const std::string &text, const std::string &end)
{
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

} // namespace

int WComboBox::findText(const WString &text, WFlags<MatchFlag> flags) const
{
  const int kind = flags.value() & 0x0f;
  const bool caseSensitive = kind == MatchStringExactly || (flags.value() & MatchCaseSensitive) || kind == 0;
  const std::string wanted = folded(text.toUTF8(), caseSensitive);
  for (int i = 0; i < count(); ++i) {
    const std::string item = folded(itemText(i).toUTF8(), caseSensitive);
    const bool matches = kind == MatchStartsWith ? item.compare(0, wanted.size(), wanted) == 0
                         : kind == MatchEndsWith ? endsWith(item, wanted)
                                                 : item == wanted;
    if (matches)
      return i;
  }
  return -1;
}

void WComboBox::setModel(WAbstractItemModel *model)
{
  if (model == model_)
    return;
  if (signals_) {
    for (const auto &connection : signals_->model)
      connection.disconnect();
    signals_->model.clear();
  }
  model_ = model;
  items_.clear();
  if (model_) {
    auto &connections = userSignals().model;
    connections.push_back(model_->rowsInserted().connect(this, &WComboBox::rowsInserted));
    connections.push_back(model_->rowsRemoved().connect(this, &WComboBox::rowsRemoved));
    connections.push_back(model_->dataChanged().connect(this, &WComboBox::itemsChanged));
    connections.push_back(model_->layoutChanged().connect(this, &WComboBox::itemsChanged));
    connections.push_back(model_->modelReset().connect(this, &WComboBox::modelChanged));
    connections.push_back(model_->destroyed().connect(this, &WComboBox::modelGone));
  }
  modelChanged();
}

void WComboBox::setModelColumn(int column)
{
  modelColumn_ = column;
  modelChanged();
}

void WComboBox::setNoSelectionEnabled(bool enabled)
{
  noSelectionEnabled_ = enabled;
  setCurrentIndex(currentIndex_);
}

void WComboBox::itemsInserted(int first, int last)
{
  if (currentIndex_ < 0 && !noSelectionEnabled_)
    currentIndex_ = 0;
  else if (currentIndex_ >= first)
    currentIndex_ += last - first + 1;
  repaint();
}

void WComboBox::itemsRemoved(int first, int last)
{
  if (currentIndex_ > last)
    currentIndex_ -= last - first + 1;
  else if (currentIndex_ >= first)
    currentIndex_ = validIndex(noSelectionEnabled_ ? -1 : 0);
  repaint();
}

void WComboBox::rowsInserted(WModelIndex parent, int first, int last)
{
  if (!parent.isValid())
    itemsInserted(first, last);
}

void WComboBox::rowsRemoved(WModelIndex parent, int first, int last)
{
  if (!parent.isValid())
    itemsRemoved(first, last);
}

void WComboBox::modelChanged()
{
  currentIndex_ = validIndex(noSelectionEnabled_ ? -1 : 0);
  repaint();
}

void WComboBox::modelGone()
{
  model_ = nullptr;
  signals_->model.clear();
  modelChanged();
}

void WComboBox::itemsChanged()
{
  repaint();
}

WString WComboBox::valueText() const
{
  return currentText();
}

void WComboBox::setValueText(const WString &value)
{
  const int index = findText(value);
  if (index >= 0)
    setCurrentIndex(index);
}

void WComboBox::refresh()
{
  for (WString &item : items_)
    item.refresh();
  repaint();
  WFormWidget::refresh();
}

const char *WComboBox::domTag() const
{
  return "select";
}

void WComboBox::renderContents(Dom::Element &e)
{
  const std::size_t wanted = static_cast<std::size_t>(count());
  std::vector<Dom::Element *> options = options_;
  options.resize(wanted, nullptr);
  for (std::size_t i = 0; i < wanted; ++i) {
    if (!options[i])
      options[i] = e.document().create("option", e.owner());
    options[i]->set("#", itemText(static_cast<int>(i)).toUTF8());
  }
  options_ = options;
  e.setChildren(options);
  // A browser chooses the first option by itself, and its choice stays with the place in the list: options
  // come and go at the end.
  if ((currentIndex_ != 0 && wanted != 0) || e.get(".value"))
    showValue(e, ".value", std::to_string(currentIndex_));
}

void WComboBox::formValue(Dom::Element &at, const std::string &value)
{
  int index = -1;
  const char *const end = value.data() + value.size();
  const auto parsed = std::from_chars(value.data(), end, index);
  if (parsed.ec != std::errc() || parsed.ptr != end || index < -1 || index >= count() ||
      (index == -1 && !noSelectionEnabled_))
    return;
  currentIndex_ = index;
  acceptValue(at, ".value", value);
}

void WComboBox::domGone(Dom::Element &gone) noexcept
{
  options_.erase(std::remove(options_.begin(), options_.end(), &gone), options_.end());
  WFormWidget::domGone(gone);
}

} // namespace Wt
