// SPDX-License-Identifier: MIT
#include "WSettingsTabBase.h"

#include "Db.h"
#include "NevoSession.h"
#include "NevoUtil.h"
#include "Text.h"
#include "WAutoSizeTableView.h"

#include <Wt/WAbstractItemModel>
#include <Wt/WHBoxLayout>
#include <Wt/WMenuItem>
#include <Wt/WPushButton>
#include <Wt/WVBoxLayout>
#include <algorithm>
#include <boost/any.hpp>

namespace
{

constexpr int kSpacing = 10; ///< pixels

} // namespace

WSettingsTabBase::WSettingsTabBase(ChangeTracker::SubsectionId id, Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), saveButton(0), cancelButton(0), detailsMenuItem(0), subsectionId(id),
      tableView(0), holdsChanges(false), isKeepingSelection(false), isUnread(true), isDiscarding(false)
{
}

void WSettingsTabBase::layOut(Wt::WBoxLayout *content)
{
  saveButton = new Wt::WPushButton(text("Save"));
  cancelButton = new Wt::WPushButton(text("Cancel"));
  saveButton->disable();
  cancelButton->disable();
  Wt::WVBoxLayout *layout = new Wt::WVBoxLayout();
  layout->setSpacing(kSpacing);
  layout->addLayout(content);
  Wt::WHBoxLayout *buttons = new Wt::WHBoxLayout();
  buttons->addWidget(cancelButton);
  buttons->addWidget(saveButton);
  buttons->addStretch(1);
  layout->addLayout(buttons);
  layout->addStretch(1);
  setLayout(layout);
}

void WSettingsTabBase::registerDetailsMenuItem(Wt::WMenuItem *menuItem)
{
  detailsMenuItem = menuItem;
}

void WSettingsTabBase::registerTableView(WAutoSizeTableView *view)
{
  tableView = view;
  tableView->selectionChanged().connect(this, &WSettingsTabBase::selectionChangedHandler);
}

// ---- Unsaved edits

bool WSettingsTabBase::hasChanged() const
{
  return holdsChanges;
}

void WSettingsTabBase::indicateChangedContent(bool changed)
{
  holdsChanges = changed;
  NevoSession *session = NevoSession::current();
  if (!session)
    return;
  session->subsectionChanged(subsectionId, changed);
  NevoUtil_indicateChange(detailsMenuItem, changed);
  if (!tableView)
    return;
  // Unsaved edits refer to the selected records, so the selection stays as long as there are any.
  if (changed)
    enableTableView(false);
  else if (!session->parentSectionChanged(subsectionId))
    enableTableView(true);
}

void WSettingsTabBase::changed(Wt::WMenuItem *item, bool changed)
{
  NevoUtil_indicateChange(item, changed);
}

void WSettingsTabBase::enableTableView(bool enabled)
{
  tableView->setDisabled(!enabled);
  tableView->setToolTip(enabled ? Wt::WString()
                                : text("Save or cancel the changes below before you select something else."));
  if (enabled)
    tableView->removeStyleClass("nevo-wtableview-disabled");
  else
    tableView->addStyleClass("nevo-wtableview-disabled");
}

bool WSettingsTabBase::writeOrKeep(const std::vector<unsigned int> &indexes, std::vector<std::string> &errors)
{
  return writeToDatabase(indexes, errors);
}

void WSettingsTabBase::discardEdits(const std::vector<unsigned int> &indexes)
{
  indicateChangedContent(false);
  // What the store cannot give back now must at least never be written.
  forgetEdits();
  isDiscarding = true;
  readFromDatabase(true, indexes, false);
  isDiscarding = false;
}

// ---- The records that are meant

bool WSettingsTabBase::shows(const std::vector<unsigned int> &indexes) const
{
  return shown.size() == indexes.size() && std::is_permutation(shown.begin(), shown.end(), indexes.begin());
}

void WSettingsTabBase::selectionChangedHandler()
{
  if (!shows(selectedRecords()))
    keepSelection();
}

/// Where the user has edited the records that the tab shows, they are the ones that stay selected.
void WSettingsTabBase::keepSelection()
{
  if (!tableView || isKeepingSelection || shown.empty() || !(holdsChanges || hasUnnoticedEdit()))
    return;
  isKeepingSelection = true;
  std::vector<unsigned int> edited = shown;
  tableView->setSelectedZelIndexes(edited);
  // A list that is just being filled anew does not have them yet.
  if (shows(selectedRecords()))
    noticeEdits();
  isKeepingSelection = false;
}

std::vector<unsigned int> WSettingsTabBase::selectedRecords() const
{
  std::vector<unsigned int> records;
  for (const Wt::WModelIndex &selected : tableView->selectedIndexes()) {
    const Wt::WAbstractItemModel &model = *tableView->model();
    const boost::any data = model.data(model.index(selected.row(), 0), Wt::EditRole);
    if (const unsigned int *record = boost::any_cast<unsigned int>(&data))
      records.push_back(*record);
  }
  return records;
}

// ---- Reading

WSettingsTabBase::Reading WSettingsTabBase::readingFor(bool force, const std::vector<unsigned int> &indexes,
                                                       bool selectionChanged)
{
  if (isDiscarding)
    return OverTheUser;
  if (!shows(indexes)) {
    keepSelection();
    return holdsChanges || isKeepingSelection ? NoReading : OverTheUser;
  }
  if (anyWidgetHasFocus())
    return NoReading;
  if (!force && !isUnread && !newDataIsAvailable() && !selectionChanged)
    return NoReading;
  return force && !holdsChanges ? PuttingBack : KeepingEdits;
}

void WSettingsTabBase::endReading(const std::vector<unsigned int> &indexes, bool failed)
{
  isUnread = failed;
  shown = indexes;
}

void WSettingsTabBase::watch(const std::vector<InfoMgr_InfoID> &ids)
{
  for (const InfoMgr_InfoID id : ids)
    watches.push_back({id, 0});
}

bool WSettingsTabBase::newDataIsAvailable()
{
  return std::any_of(watches.begin(), watches.end(),
                     [](Watch &watch) { return Db_db.newDataIsAvailable(watch.id, watch.lastChange); });
}
