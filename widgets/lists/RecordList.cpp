// SPDX-License-Identifier: MIT
#include "RecordList.h"

#include "NevoUtil.h"
#include "Text.h"
#include "WNumericSortFilterProxyModel.h"

#include <Wt/WStandardItem>
#include <Wt/WStandardItemModel>
#include <Wt/WTableView>
#include <boost/any.hpp>

namespace
{

const int kLineHeight = 28; ///< pixels of a row and of the heading

const char kUnreadClass[] = "nevo-list-unread";

template <class Value> bool holds(const boost::any &data, const Value &value)
{
  const Value *held = boost::any_cast<Value>(&data);
  return held && *held == value;
}

std::string textOf(const boost::any &data)
{
  const std::string *text = boost::any_cast<std::string>(&data);
  return text ? *text : std::string();
}

Wt::WStandardItem *itemOf(const ListCell &cell)
{
  Wt::WStandardItem *item = new Wt::WStandardItem();
  item->setData(boost::any(cell.text), Wt::EditRole);
  if (!cell.styleClass.empty())
    item->setData(boost::any(cell.styleClass), Wt::StyleClassRole);
  return item;
}

} // namespace

/// While it lives, what happens to the selection is not told.
class RecordList::Silence
{
public:
  explicit Silence(RecordList &list) : silent(list.silent), before(list.silent) { silent = true; }
  ~Silence() { silent = before; }

private:
  bool &silent;
  bool before;
};

RecordList::RecordList(Wt::WTableView &tableView)
    : Wt::WObject(&tableView), view(tableView), model(new Wt::WStandardItemModel(&tableView)),
      proxyModel(new WNumericSortFilterProxyModel(&tableView))
{
  proxyModel->setSourceModel(model);
  proxyModel->setDynamicSortFilter(true);
  proxyModel->setFilterKeyColumn(1);
  proxyModel->setFilterRole(Wt::EditRole);
  view.setModel(proxyModel);
  view.setSelectionMode(Wt::SingleSelection);
  view.setSortingEnabled(true);
  view.setAlternatingRowColors(false);
  view.setRowHeight(Wt::WLength(kLineHeight));
  view.setHeaderHeight(Wt::WLength(kLineHeight));
  view.selectionChanged().connect(this, &RecordList::viewSelectionChanged);
}

void RecordList::setColumns(const std::string &indexHeading, const ListColumns &columns)
{
  model->insertColumns(0, static_cast<int>(columns.size()) + 1);
  model->setHeaderData(0, Wt::Horizontal, boost::any(indexHeading), Wt::EditRole);
  view.setColumnHidden(0, true);
  int at = 0;
  for (const ListColumn &column : columns) {
    ++at;
    model->setHeaderData(at, Wt::Horizontal, boost::any(column.heading.toUTF8()), Wt::EditRole);
    view.setColumnAlignment(at, column.alignment);
    view.setHeaderAlignment(at, column.alignment);
    if (column.width > 0)
      view.setColumnWidth(at, Wt::WLength(column.width));
  }
}

void RecordList::setEmptyText(const Wt::WString &text)
{
  emptyText = text;
  tellContents();
}

void RecordList::setClearedText(const Wt::WString &text)
{
  clearedText = text;
  tellContents();
}

// ---- The rows

void RecordList::show(const std::optional<ListRows> &rows)
{
  const Silence silence(*this);
  const Selection before = selection();
  state = rows ? Read : Unread;
  replaceRows(rows ? *rows : ListRows());
  proxyModel->refilter();
  select(before, selectionStays);
  tellContents();
}

void RecordList::clear()
{
  const Silence silence(*this);
  state = Cleared;
  replaceRows(ListRows());
  tellContents();
}

std::optional<RecordList::Key> RecordList::keyAt(int row) const
{
  const boost::any data = model->data(row, 0, Wt::EditRole);
  const unsigned int *index = boost::any_cast<unsigned int>(&data);
  if (!index)
    return std::nullopt;
  return Key(*index, kindColumn > 0 ? textOf(model->data(row, kindColumn, Wt::EditRole)) : std::string());
}

RecordList::Key RecordList::keyOf(const ListRow &row) const
{
  const std::size_t cell = static_cast<std::size_t>(kindColumn - 1);
  return Key(row.index, kindColumn > 0 && cell < row.cells.size() ? row.cells[cell].text : std::string());
}

void RecordList::replaceRows(const ListRows &rows)
{
  std::set<Key> wanted;
  for (const ListRow &row : rows)
    wanted.insert(keyOf(row));
  const std::set<Key> present = removeAllBut(wanted);
  int at = 0;
  for (const ListRow &row : rows) {
    const Key key = keyOf(row);
    if (at < model->rowCount() && keyAt(at) == key) {
      updateRow(at, row);
    } else {
      // Records that have changed places come anew, and all that stand after them.
      if (present.count(key) != 0 && at < model->rowCount())
        model->removeRows(at, model->rowCount() - at);
      insertRow(at, row);
    }
    ++at;
  }
  if (at < model->rowCount())
    model->removeRows(at, model->rowCount() - at);
}

/// Removes the rows of all other records, and tells of which there are rows left.
std::set<RecordList::Key> RecordList::removeAllBut(const std::set<Key> &wanted)
{
  std::set<Key> present;
  int end = model->rowCount(); // of the rows that go together
  for (int row = model->rowCount() - 1; row >= 0; --row) {
    const std::optional<Key> key = keyAt(row);
    if (!key || wanted.count(*key) == 0)
      continue;
    present.insert(*key);
    if (end > row + 1)
      model->removeRows(row + 1, end - row - 1);
    end = row;
  }
  if (end > 0)
    model->removeRows(0, end);
  return present;
}

void RecordList::insertRow(int at, const ListRow &row)
{
  std::vector<Wt::WStandardItem *> items = {new Wt::WStandardItem()};
  items.front()->setData(boost::any(row.index), Wt::EditRole);
  for (const ListCell &cell : row.cells)
    items.push_back(itemOf(cell));
  model->insertRow(at, items);
}

void RecordList::updateRow(int at, const ListRow &row)
{
  int column = 0;
  for (const ListCell &cell : row.cells) {
    ++column;
    if (!holds(model->data(at, column, Wt::EditRole), cell.text))
      model->setData(at, column, boost::any(cell.text), Wt::EditRole);
    if (textOf(model->data(at, column, Wt::StyleClassRole)) != cell.styleClass)
      model->setData(at, column, boost::any(cell.styleClass), Wt::StyleClassRole);
  }
}

// ---- The selection

std::vector<unsigned int> RecordList::selectedIndexes() const
{
  std::vector<unsigned int> indexes;
  NevoUtil_modelIndexSetToZelIndexVect(view.selectedIndexes(), model, proxyModel, indexes);
  return indexes;
}

int RecordList::selectedCount() const
{
  return static_cast<int>(view.selectedIndexes().size());
}

void RecordList::clearSelection()
{
  const Silence silence(*this);
  view.setSelectedIndexes(Wt::WModelIndexSet());
}

RecordList::Selection RecordList::selection() const
{
  Selection selected;
  for (const Wt::WModelIndex &index : view.selectedIndexes()) {
    selected.rows.insert(index.row());
    if (const std::optional<Key> key = keyAt(proxyModel->mapToSource(index).row()))
      selected.records.insert(*key);
  }
  return selected;
}

void RecordList::select(const Selection &wanted, SelectionStays where)
{
  Wt::WModelIndexSet indexes;
  for (int row = 0, rows = wanted.rows.empty() ? 0 : proxyModel->rowCount(); row < rows; ++row) {
    const Wt::WModelIndex index = proxyModel->index(row, 0);
    const std::optional<Key> key = keyAt(proxyModel->mapToSource(index).row());
    if (where == AtItsRow ? wanted.rows.count(row) != 0 : key && wanted.records.count(*key) != 0)
      indexes.insert(index);
  }
  if (indexes != view.selectedIndexes())
    view.setSelectedIndexes(indexes);
}

void RecordList::viewSelectionChanged()
{
  if (!silent)
    changed.emit();
}

// ---- The filter

void RecordList::setFilter(const std::string &words)
{
  if (words == filter())
    return;
  const Selection before = selection();
  {
    const Silence silence(*this);
    proxyModel->setFilterWords(words);
    select(before, WithItsRecord);
    tellContents();
  }
  const Wt::WModelIndexSet now = view.selectedIndexes();
  if (!now.empty())
    view.scrollTo(*now.begin());
  if (now.size() != before.rows.size())
    changed.emit();
}

const std::string &RecordList::filter() const
{
  return proxyModel->filterWords();
}

int RecordList::shownCount() const
{
  return proxyModel->rowCount();
}

int RecordList::recordCount() const
{
  return model->rowCount();
}

void RecordList::tellContents()
{
  Wt::WString why;
  if (recordCount() > 0)
    why = text("Nothing in the list matches what you have typed.");
  else if (state != Unread)
    why = state == Read ? emptyText : clearedText;
  // The page shows it while there are no rows.
  view.setAttributeValue("data-empty", recordCount() > 0 && shownCount() > 0 ? Wt::WString() : why);
  view.toggleStyleClass(kUnreadClass, state == Unread);
  contents.emit();
}
