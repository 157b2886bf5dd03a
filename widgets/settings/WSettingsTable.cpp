// SPDX-License-Identifier: MIT
#include "WSettingsTable.h"

#include "Db.h"
#include "DbExchange.h"
#include "NevoUtil.h"
#include "ZelClient.h"
#include "ZelValue.h"

#include <Wt/WAnchor>
#include <Wt/WCheckBox>
#include <Wt/WComboBox>
#include <Wt/WIntValidator>
#include <Wt/WRegExpValidator>
#include <Wt/WTableCell>
#include <Wt/WText>
#include <algorithm>
#include <map>

namespace
{

const int kAreaHeight = 54; ///< pixels, three lines

using Path = std::vector<std::string>;

/// "swx/network/ipv4" gives "swx", "network" and "ipv4".
Path partsOf(const char *text)
{
  Path parts(1);
  for (; *text; ++text) {
    if (*text == '/')
      parts.emplace_back();
    else
      parts.back() += *text;
  }
  return parts;
}

Path within(const char *resource)
{
  Path path = partsOf(resource);
  path.erase(path.begin());
  return path;
}

/// Null for a widget that is no field of input.
const char *styleOf(Wt::WWidget *widget, bool isReadOnly)
{
  if (isReadOnly)
    return dynamic_cast<Wt::WLineEdit *>(widget) ? "nevo-attribute-table-read-only-line-edit" : 0;
  if (dynamic_cast<Wt::WTextArea *>(widget))
    return "nevo-attribute-table-read-write-multi-line-edit";
  if (dynamic_cast<Wt::WLineEdit *>(widget))
    return "nevo-attribute-table-read-write-line-edit";
  if (dynamic_cast<Wt::WComboBox *>(widget))
    return "nevo-attribute-table-read-write-combo-box";
  return 0;
}

/// The objects within a response that hold the rows' parameters, each fetched out of it when first asked for.
class NestedObjects
{
public:
  NestedObjects(json_t *response, bool indexed) : response(response), indexed(indexed) {}

  /// Null if the store gave no such object. Stays with this.
  json_t *at(const Path &path)
  {
    if (path.empty())
      return response;
    const auto known = found.find(path);
    if (known != found.end())
      return known->second;
    json_t *outer = at(Path(path.begin(), path.end() - 1));
    return found[path] = outer ? enter(outer, path.back().c_str()) : 0;
  }

private:
  json_t *enter(json_t *outer, const char *name)
  {
    if (!indexed)
      return ZelRspUtil_getObjectParam(outer, name);
    collapsed.emplace_back(ZelObj_collapse(outer, "index", name));
    return collapsed.back().get();
  }

  json_t *const response;
  const bool indexed;
  std::map<Path, json_t *> found;
  std::vector<ZelObject> collapsed;
};

/// The objects within the parameters of a request, each made when first asked for.
class NestedParams
{
public:
  explicit NestedParams(json_t *params) : params(params) {}

  /// Null without memory. Belongs to the parameters.
  json_t *at(const Path &path)
  {
    if (path.empty())
      return params;
    const auto known = made.find(path);
    if (known != made.end())
      return known->second;
    json_t *outer = at(Path(path.begin(), path.end() - 1));
    json_t *inner = outer ? ZelObj_new() : 0;
    if (inner && ZelObj_setObject(outer, path.back().c_str(), inner) != 0)
      inner = 0;
    return made[path] = inner;
  }

private:
  json_t *const params;
  std::map<Path, json_t *> made;
};

} // namespace

WSettingsTable::WSettingsTable(const char *boundResource, int tableOptions,
                               const std::vector<Wt::WString> &headings, Wt::WContainerWidget *parent)
    : Wt::WTable(parent), options(tableOptions), resourceName(partsOf(boundResource).front()),
      resource(boundResource), path(within(boundResource)), readApart(false), fieldWidth(0), edited(false),
      groups(1)
{
  setHeaderCount(1);
  for (std::size_t column = 0; column < headings.size(); ++column) {
    Wt::WTableCell *cell = elementAt(0, static_cast<int>(column));
    cell->setStyleClass("nevo-attribute-table-heading");
    new Wt::WText(headings[column], Wt::PlainText, cell);
  }
}

// ---- Rows

void WSettingsTable::bindTo(const char *boundResource)
{
  resource = boundResource;
  path = within(boundResource);
  readApart = false;
}

void WSettingsTable::bindApart(const char *boundResource, const char *objectSent)
{
  resource = boundResource;
  path = partsOf(objectSent);
  readApart = true;
}

void WSettingsTable::beginGroup(std::function<bool(Indexes &)> find)
{
  groups.push_back({std::move(find)});
}

void WSettingsTable::addHeading(const Wt::WString &text)
{
  const int row = rowCount();
  elementAt(row, 0)->setStyleClass("nevo-attribute-table-group-label");
  new Wt::WText(text, Wt::PlainText, elementAt(row, 0));
  elementAt(row, 1)->setStyleClass("nevo-multi-col-attribute-table-read-only-cell");
}

void WSettingsTable::addRow(const Wt::WString &label, Wt::WWidget *widget, const char *cellStyle,
                            const Wt::WString &toolTip, bool isReadOnly)
{
  // A link is named by its own text, which a label would hide from who listens.
  if (!dynamic_cast<Wt::WAnchor *>(widget))
    widget->setAttributeValue("aria-label", label);
  addCell(addLabel(label), widget, cellStyle, toolTip, isReadOnly);
}

int WSettingsTable::addLabel(const Wt::WString &label)
{
  const int row = rowCount();
  elementAt(row, 0)->setStyleClass("nevo-attribute-table-label");
  new Wt::WText(label, Wt::PlainText, elementAt(row, 0));
  return row;
}

void WSettingsTable::addCell(int row, Wt::WWidget *widget, const char *cellStyle, const Wt::WString &toolTip,
                             bool isReadOnly)
{
  int column = 1;
  while (column < columnCount() && elementAt(row, column)->count() > 0)
    ++column;
  elementAt(row, column)->setStyleClass(cellStyle);
  elementAt(row, column)->addWidget(widget);
  if (const char *style = styleOf(widget, isReadOnly))
    widget->addStyleClass(style);
  if (isReadOnly && dynamic_cast<Wt::WFormWidget *>(widget))
    widget->setDisabled(true);
  if (!toolTip.empty())
    widget->setToolTip(toolTip);
  if (fieldWidth > 0 && !dynamic_cast<Wt::WCheckBox *>(widget))
    widget->resize(Wt::WLength(fieldWidth), Wt::WLength::Auto);
}

void WSettingsTable::enterRow(WWidgetZel *field, Wt::WFormWidget *form, std::function<bool()> hasFocus,
                              const char *param)
{
  const bool isEdited = static_cast<bool>(hasFocus);
  rows.push_back(
      {field, form, std::move(hasFocus), path, param, readApart, groups.size() - 1, {}, {}, false});
  if (isEdited)
    field->contentChanged().connect(this, &WSettingsTable::contentChangedHandler);
}

void WSettingsTable::enterReader(std::function<bool(Indexes &)> read)
{
  rows.push_back({0, 0, {}, {}, 0, true, groups.size() - 1, std::move(read), {}, false});
}

void WSettingsTable::sendWhile(WWidgetZel *field, std::function<bool()> condition)
{
  for (Row &row : rows)
    if (row.field == field)
      row.isSent = condition;
}

void WSettingsTable::writeFirst(WWidgetZel *field)
{
  std::stable_partition(rows.begin(), rows.end(), [field](const Row &row) { return row.field == field; });
}

WLineEditZel *WSettingsTable::addLine(const Wt::WString &label, const char *param, const Wt::WString &toolTip,
                                      int limit, const char *pattern, bool mandatory)
{
  WLineEditZel *line = add<WLineEditZel>(label, param, toolTip);
  Wt::WRegExpValidator *validator = new Wt::WRegExpValidator(pattern);
  validator->setMandatory(mandatory);
  line->setValidator(validator);
  line->setMaxLength(limit);
  return line;
}

WTextAreaZel *WSettingsTable::addArea(const Wt::WString &label, const char *param, const Wt::WString &toolTip,
                                      const char *pattern)
{
  WTextAreaZel *area = add<WTextAreaZel>(label, param, toolTip);
  area->setValidator(new Wt::WRegExpValidator(pattern));
  area->resize(fieldWidth > 0 ? Wt::WLength(fieldWidth) : Wt::WLength::Auto, Wt::WLength(kAreaHeight));
  return area;
}

WLineEditUInt32Zel *WSettingsTable::addNumber(const Wt::WString &label, const char *param,
                                              const Wt::WString &toolTip, int lowest, int highest,
                                              bool mandatory)
{
  WLineEditUInt32Zel *number = add<WLineEditUInt32Zel>(label, param, toolTip);
  Wt::WIntValidator *validator = new Wt::WIntValidator(lowest, highest);
  validator->setMandatory(mandatory);
  number->setValidator(validator);
  number->setMaxLength(NevoUtil_strLenOfDecInt(highest));
  return number;
}

// ---- Reading

void WSettingsTable::readFromDatabase(std::vector<unsigned int> indexes, bool force)
{
  for (std::size_t group = 0; group < groups.size(); ++group)
    readGroup(group, indexes, force);
  recordsRead = indexes;
  if (force)
    edited = false;
  adjustDependentWidgets();
}

bool WSettingsTable::isReadAtOnce(const Row &row) const
{
  return !row.readsItself && ((options & ReadsAtOnce) || !row.path.empty());
}

void WSettingsTable::readGroup(std::size_t group, const Indexes &brought, bool force)
{
  Indexes indexes = brought;
  if (groups[group].find && groups[group].find(indexes))
    return;
  const bool namesNone = isIndexed() && indexes.empty();
  for (Row &row : rows) {
    if (row.group != group || isReadAtOnce(row))
      continue;
    std::vector<std::string> dropped;
    const bool failed = row.read ? row.read(indexes) : row.field->readFromDatabase(indexes, dropped, force);
    row.unread = failed && !namesNone;
  }
  readAtOnce(group, indexes, force);
}

void WSettingsTable::readAtOnce(std::size_t group, Indexes &indexes, bool force)
{
  const auto concerned = [&](const Row &row) { return row.group == group && isReadAtOnce(row); };
  if (std::none_of(rows.begin(), rows.end(), concerned))
    return;
  ZelResponse owner;
  const bool asks = !isIndexed() || !indexes.empty();
  json_t *response = 0;
  const bool failed = asks && fetch(group, indexes, response);
  owner.reset(response);
  NestedObjects objects(owner.get(), isIndexed());
  for (Row &row : rows) {
    if (!concerned(row))
      continue;
    json_t *object = failed ? 0 : objects.at(row.path);
    row.unread = asks && !object;
    if (object || !asks)
      row.field->getZelParam(object, indexes, force);
  }
}

bool WSettingsTable::isUnread() const
{
  return std::any_of(rows.begin(), rows.end(), [](const Row &row) { return row.unread; });
}

void WSettingsTable::blankUnread()
{
  std::vector<unsigned int> none;
  std::vector<std::string> dropped;
  for (const Row &row : rows) {
    if (!row.unread || !isIndexed())
      continue;
    if (row.read)
      row.read(none);
    else if (isReadAtOnce(row))
      row.field->getZelParam(0, none, true);
    else
      row.field->readFromDatabase(none, dropped, true);
  }
  adjustDependentWidgets();
}

void WSettingsTable::setGivesWay(bool gives)
{
  givesWay = gives;
  for (const Row &row : rows)
    if (row.field)
      row.field->setGivesWay(gives);
}

bool WSettingsTable::fetch(std::size_t group, const Indexes &indexes, json_t *&response) const
{
  static const char *const function = "readFromDatabase";
  ZelClient_s *client = 0;
  if (Db_db.getZelClient(client) != 0)
    return true;
  ZelRequest request(ZelReqUtil_newGetResource(resourceName.c_str()));
  if (!request)
    return DbExchange_noRequest(function) != 0;
  if (isIndexed())
    for (const unsigned int index : indexes)
      ZelReqUtil_setIntegerQuery(request.get(), "index", index);
  selectFor(group, request.get());
  ZelResponse answer;
  std::vector<std::string> dropped;
  const bool failed = DbExchange_send(function, client, request, 0, answer, dropped) != 0;
  response = failed ? 0 : answer.release();
  return failed;
}

/// Of records that hold objects, only what is shown is asked for: there is much else in them.
void WSettingsTable::selectFor(std::size_t group, json_t *request) const
{
  bool isNested = false;
  std::vector<std::string> wanted;
  if (isIndexed())
    wanted.push_back("index");
  for (const Row &row : rows) {
    if (row.group != group || !isReadAtOnce(row))
      continue;
    isNested = isNested || !row.path.empty();
    const std::string name = !row.path.empty() ? row.path.front() : row.param ? row.param : "";
    if (!name.empty() && std::find(wanted.begin(), wanted.end(), name) == wanted.end())
      wanted.push_back(name);
  }
  if (isNested)
    for (const std::string &name : wanted)
      ZelReqUtil_setSelect(request, name.c_str());
}

// ---- Writing

bool WSettingsTable::writeToDatabase(std::vector<unsigned int> indexes, std::vector<std::string> &errors)
{
  if (options & WritesFieldwise)
    return writeFieldwise(indexes, errors);
  if (!edited || (isIndexed() && indexes.empty()))
    return false;
  bool refused = false;
  for (const unsigned int index : isIndexed() ? indexes : std::vector<unsigned int>(1, 0))
    if (writeRecord(index, errors, refused))
      return true;
  clearContentChanged();
  return refused && !(options & ToleratesErrors);
}

bool WSettingsTable::writeFieldwise(std::vector<unsigned int> &indexes, std::vector<std::string> &errors)
{
  bool failed = false;
  for (const Row &row : rows)
    if (isWritten(row) && row.field->writeToDatabase(indexes, errors))
      failed = true;
  edited = false;
  return failed && !(options & ToleratesErrors);
}

/// True if there is no answer; `refused` becomes true if it tells of errors.
bool WSettingsTable::writeRecord(unsigned int index, std::vector<std::string> &errors, bool &refused)
{
  ZelClient_s *client = 0;
  if (Db_db.getZelClient(client) != 0)
    return true;
  ZelRequest request(ZelReqUtil_newSetResource(resourceName.c_str()));
  ZelObject params(ZelObj_new());
  if (!request || !params)
    return DbExchange_noRequest("writeToDatabase") != 0;
  if (isIndexed())
    ZelObj_setUInt32(params.get(), "index", index);
  fill(params.get());
  if (ZelObj_setObject(request.get(), "params", params.release()) != 0)
    return true;
  const ZelResponse response(ZelClient_getResponse(client, request.get()));
  if (!response)
    return true;
  if (json_t *reported = ZelRspUtil_getObjectParam(response.get(), "errors")) {
    Db_db.interpZelErrors(reported, errors, false);
    Db_db.logZelErrors(errors);
    refused = true;
  }
  return false;
}

void WSettingsTable::fill(json_t *params) const
{
  NestedParams objects(params);
  for (const Row &row : rows) {
    // An object is sent only for a change within it.
    if (!isWritten(row) || (!row.path.empty() && !row.field->hasChangedContent()))
      continue;
    if (json_t *object = objects.at(row.path))
      row.field->setZelParam(object);
  }
}

bool WSettingsTable::isWritten(const Row &row) const
{
  return row.hasFocus && (!row.isSent || row.isSent());
}

// ---- The user's edits

bool WSettingsTable::counts(const Row &row) const
{
  return row.hasFocus && row.form && row.form->validator() &&
         !((options & CountsEnabledOnly) && row.form->isDisabled());
}

/// Whether the field follows its rule. One that is blank since records differ does not show it.
bool WSettingsTable::follows(const Row &row) const
{
  if (row.field->showsDifference())
    return !row.field->isMandatoryOtherwise();
  return row.form->validate() == Wt::WValidator::Valid;
}

bool WSettingsTable::isAllValid()
{
  // Every field is asked: each shows for itself whether it follows its rule.
  bool valid = true;
  for (const Row &row : rows)
    if (counts(row) && !follows(row))
      valid = false;
  for (const std::function<bool()> &rule : rules)
    if (!rule())
      valid = false;
  return valid;
}

bool WSettingsTable::isAnyValid()
{
  bool any = false;
  bool none = true;
  for (const Row &row : rows) {
    if (!counts(row))
      continue;
    none = false;
    if (follows(row))
      any = true;
  }
  return any || none;
}

bool WSettingsTable::anyWidgetHasFocus() const
{
  for (const Row &row : rows)
    if (row.hasFocus && row.hasFocus())
      return true;
  return false;
}

bool WSettingsTable::hasUnnoticedEdit() const
{
  return std::any_of(rows.begin(), rows.end(),
                     [](const Row &row) { return row.field && row.field->hasUnnoticedEdit(); });
}

void WSettingsTable::noticeEdits()
{
  for (const Row &row : rows)
    if (row.field)
      row.field->noticeEdit();
}

void WSettingsTable::setFocusOnFirst()
{
  const auto first = std::find_if(rows.begin(), rows.end(), [](const Row &row) {
    return row.hasFocus && row.form && row.form->isEnabled();
  });
  if (first != rows.end())
    first->form->setFocus();
}

std::vector<WWidgetZel *> WSettingsTable::changedFields() const
{
  std::vector<WWidgetZel *> fields;
  for (const Row &row : rows)
    if (row.field && row.field->hasChangedContent())
      fields.push_back(row.field);
  return fields;
}

void WSettingsTable::setContentChanged(const std::vector<WWidgetZel *> &fields)
{
  for (WWidgetZel *field : fields)
    field->setContentChanged();
  edited = edited || !fields.empty();
}

void WSettingsTable::clearContentChanged()
{
  edited = false;
  for (const Row &row : rows)
    if (row.field)
      row.field->clearContentChanged();
}

void WSettingsTable::contentChangedHandler()
{
  edited = true;
  adjustDependentWidgets();
  contentChangedSignal.emit();
}

void WSettingsTable::adjustDependentWidgets()
{
  for (const std::function<void()> &adjust : dependencies)
    adjust();
}
