// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WSETTINGS_TABLE_H_
#define WIDGETS_WSETTINGS_TABLE_H_

#include "WLineEditUInt32Zel.h"
#include "WLineEditZel.h"
#include "WTextAreaZel.h"
#include "WWidgetZel.h"

#include <Wt/WFormWidget>
#include <Wt/WSignal>
#include <Wt/WString>
#include <Wt/WTable>
#include <functional>
#include <jansson.h>
#include <string>
#include <vector>

/**
 * A table of settings: a label and a bound widget in each row. A class of settings derives from it and adds
 * its rows in its constructor; reading, writing, validity and the enabling of fields that depend on others
 * are the same for all.
 *
 * It stands for the records whose store indexes each call brings, and keeps none of them.
 */
class WSettingsTable : public Wt::WTable
{
public:
  /// How a table differs from the commonest kind, which is over records, lets each widget read itself,
  /// writes one request for each record, and reports what the store refused.
  enum Option {
    Plain = 0,
    SingleRecord = 1,    ///< the resource has one record, without an index
    ReadsAtOnce = 2,     ///< one request fetches all fields of all records
    WritesFieldwise = 4, ///< each field writes itself, all of them whatever fails
    ToleratesErrors = 8, ///< what the store refused fails no write; it is in the list of errors all the same
    CountsEnabledOnly = 16 ///< a disabled field has no part in the validity
  };

  /// `resource` names the store's resource and, behind slashes, the objects in a record that hold the rows'
  /// parameters, as "swx/network/ipv4" does; it must outlive the table. `options` are of Option.
  WSettingsTable(const char *resource, int options, const std::vector<Wt::WString> &headings,
                 Wt::WContainerWidget *parent = 0);

  /// Shows the records. An edit of the user stays unless `force`: then every field shows the store's value.
  /// Failures are dropped: what cannot be read keeps what it shows.
  virtual void readFromDatabase(std::vector<unsigned int> indexes, bool force = false);

  /// Whether something could not be read the last time, and those fields, blank.
  bool isUnread() const;
  void blankUnread();

  /// While the table gives way, a read also changes the field that the user is in.
  void setGivesWay(bool gives);

  /// Gives each record what the user changed, and nothing else. True on failure.
  virtual bool writeToDatabase(std::vector<unsigned int> indexes, std::vector<std::string> &errors);

  /// Whether all fields that have rules follow them; asked for one record.
  virtual bool isAllValid();

  /// Whether at least one does, or none has any; asked for several records, of which blank fields stay as
  /// they are.
  virtual bool isAnyValid();

  /// Whether the user is in one of the fields.
  virtual bool anyWidgetHasFocus() const;

  /// Whether the user has typed something that was not noticed yet, and the notice of it.
  bool hasUnnoticedEdit() const;
  void noticeEdits();

  /// Puts the user into the first field that can be edited.
  void setFocusOnFirst();

  /// Whether the user changed something since it was last written or put back.
  bool hasChangedContent() const { return edited; }
  void clearContentChanged();

  /// The fields that hold an edit. A write forgets what was edited, taken by the store or not; with these it
  /// can be called back.
  std::vector<WWidgetZel *> changedFields() const;
  void setContentChanged(const std::vector<WWidgetZel *> &fields);

  /// Emitted when the user changes a field, after the fields that depend on it were adjusted.
  Wt::Signal<> &contentChanged() { return contentChangedSignal; }
  virtual void contentChangedHandler();

protected:
  /// The rows that follow are bound to this resource and path, as the constructor's.
  void bindTo(const char *resource);

  /// The fields that follow are this wide, in pixels; 0 leaves it to the theme.
  void setFieldWidth(int pixels) { fieldWidth = pixels; }

  /// Adds a row with a new field of class `Field`, which takes a resource, a parameter and whether it is
  /// indexed.
  template <class Field>
  Field *add(const Wt::WString &label, const char *param, const Wt::WString &toolTip = Wt::WString())
  {
    return addField(label, new Field(resource, param, isIndexed()), toolTip, param);
  }

  /// The same for a field that cannot be edited.
  template <class Field> Field *addReadOnly(const Wt::WString &label, const char *param)
  {
    return addReadOnlyField(label, new Field(resource, param, isIndexed()), param);
  }

  /// A line of text: at most so many characters, of this pattern.
  WLineEditZel *addLine(const Wt::WString &label, const char *param, const Wt::WString &toolTip, int limit,
                        const char *pattern, bool mandatory = false);
  /// Several lines of text of this pattern.
  WTextAreaZel *addArea(const Wt::WString &label, const char *param, const Wt::WString &toolTip,
                        const char *pattern);
  /// A number between two bounds, both included.
  WLineEditUInt32Zel *addNumber(const Wt::WString &label, const char *param, const Wt::WString &toolTip,
                                int lowest, int highest, bool mandatory = true);

  /// Adds a row with a field that the caller made, which becomes the table's. `param` is what it reads from
  /// the record, null if it needs nothing of its own.
  template <class Field>
  Field *addField(const Wt::WString &label, Field *field, const Wt::WString &toolTip, const char *param = 0);
  template <class Field>
  Field *addReadOnlyField(const Wt::WString &label, Field *field, const char *param = 0);

  /// Adds a row with a widget that is not bound to the store.
  void addRow(const Wt::WString &label, Wt::WWidget *widget, const char *cellStyle,
              const Wt::WString &toolTip = Wt::WString());

  /// Enables a field exactly while a condition holds, which is looked at after each read and each change.
  template <class Field> void enableWhile(Field *field, std::function<bool()> condition)
  {
    dependencies.push_back([field, condition = std::move(condition)] { field->setEnabled(condition()); });
  }

  /// Adjusts what else depends on other fields, after each read and each change.
  virtual void adjustDependentWidgets();

  bool isIndexed() const { return !(options & SingleRecord); }

private:
  struct Row {
    WWidgetZel *field;
    Wt::WFormWidget *form;          ///< null if it has no rules
    std::function<bool()> hasFocus; ///< empty if it is not edited
    std::vector<std::string> path;  ///< the objects within the record
    const char *param;              ///< null: nothing is asked for
    bool unread;                    ///< the last read failed
  };

  void enterRow(WWidgetZel *field, Wt::WFormWidget *form, std::function<bool()> hasFocus, const char *param);
  void readAtOnce(std::vector<unsigned int> &indexes, bool force);
  void selectWithin(json_t *request) const;
  bool fetch(const std::vector<unsigned int> &indexes, json_t *&response) const;
  bool writeFieldwise(std::vector<unsigned int> &indexes, std::vector<std::string> &errors);
  bool writeRecord(unsigned int index, std::vector<std::string> &errors, bool &refused);
  void fill(json_t *params) const;
  bool counts(const Row &row) const;
  bool follows(const Row &row) const;

  const int options;
  const std::string resourceName; ///< without a path
  const char *resource;           ///< of the rows that follow, with its path
  std::vector<std::string> path;  ///< of the rows that follow
  int fieldWidth;
  bool edited;
  std::vector<Row> rows;
  std::vector<std::function<void()>> dependencies;
  Wt::Signal<> contentChangedSignal;
};

template <class Field>
Field *WSettingsTable::addField(const Wt::WString &label, Field *field, const Wt::WString &toolTip,
                                const char *param)
{
  addRow(label, field, "nevo-attribute-table-read-write-cell", toolTip);
  enterRow(
      field, dynamic_cast<Wt::WFormWidget *>(static_cast<Wt::WWidget *>(field)),
      [field] { return field->hasFocus(); }, param);
  return field;
}

template <class Field>
Field *WSettingsTable::addReadOnlyField(const Wt::WString &label, Field *field, const char *param)
{
  addRow(label, field, "nevo-attribute-table-read-only-cell");
  enterRow(field, 0, std::function<bool()>(), param);
  return field;
}

#endif // WIDGETS_WSETTINGS_TABLE_H_
