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
 * It stands for the records whose store indexes each call brings. Conditions may ask which ones the fields
 * show: records().
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
  virtual void clearContentChanged();

  /// The fields that hold an edit. A write forgets what was edited, taken by the store or not; with these it
  /// can be called back.
  virtual std::vector<WWidgetZel *> changedFields() const;
  void setContentChanged(const std::vector<WWidgetZel *> &fields);

  /// Emitted when the user changes a field, after the fields that depend on it were adjusted.
  Wt::Signal<> &contentChanged() { return contentChangedSignal; }
  virtual void contentChangedHandler();

protected:
  using Indexes = std::vector<unsigned int>;

  /// The text of a whole key.
  static Wt::WString tr(const char *key) { return Wt::WString::tr(key); }

  /// Whether reads also change the field that the user is in.
  bool isGivingWay() const { return givesWay; }
  /// For a table that reads or writes on its own.
  void setRecords(const Indexes &indexes) { recordsRead = indexes; }

  /// The records that were read last.
  const Indexes &records() const { return recordsRead; }

  /// The rows that follow are bound to this resource and path, as the constructor's. Rows with a path are
  /// read at once, whatever the options say.
  void bindTo(const char *resource);

  /// The rows that follow are sent within this object of a record, but read each by itself from `resource`.
  void bindApart(const char *resource, const char *objectSent);

  /// The rows that follow are only shown, and stand for records of their own: `find` names them, and returns
  /// true if it cannot tell, whereupon they stay as they are.
  void beginGroup(std::function<bool(Indexes &records)> find);

  /// Adds a row with a head for the rows that follow, or an empty one between groups.
  void addHeading(const Wt::WString &text = Wt::WString());

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
  template <class Field>
  Field *addReadOnly(const Wt::WString &label, const char *param, const Wt::WString &toolTip = Wt::WString())
  {
    return addReadOnlyField(label, new Field(resource, param, isIndexed()), param, toolTip);
  }

  /// The same for a text that is worked out from several records, of class `Field`.
  template <class Field> Field *addDerived(const Wt::WString &label)
  {
    return addReader(label, new Field(), [](Field &field, Indexes &indexes) {
      std::vector<std::string> dropped;
      return field.readFromDatabase(indexes, dropped);
    });
  }

  /// A row with anything else that is only shown and read anew with the table: `read` returns true on
  /// failure. The widget becomes the table's.
  template <class Widget, class Read> Widget *addReader(const Wt::WString &label, Widget *widget, Read read)
  {
    addRow(label, widget, "nevo-attribute-table-read-only-cell");
    enterReader([widget, read](Indexes &indexes) { return read(*widget, indexes); });
    return widget;
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
  Field *addReadOnlyField(const Wt::WString &label, Field *field, const char *param = 0,
                          const Wt::WString &toolTip = Wt::WString());

  /// Adds a field to the last row, in the next column.
  template <class Field>
  Field *addBeside(Field *field, const Wt::WString &toolTip = Wt::WString(), const char *param = 0)
  {
    addCell(rowCount() - 1, field, "nevo-attribute-table-read-write-cell", toolTip, false);
    enterField(field, param);
    return field;
  }

  /// Enters a field that stands in a widget of a row into the bookkeeping of edits.
  template <class Field> void enterField(Field *field, const char *param = 0)
  {
    enterRow(
        field, dynamic_cast<Wt::WFormWidget *>(static_cast<Wt::WWidget *>(field)),
        [field] { return field->hasFocus(); }, param);
  }

  /// Adds a row with a label and nothing else yet; returns its number.
  int addLabel(const Wt::WString &label);
  /// Adds a widget in the row's first free column.
  void addCell(int row, Wt::WWidget *widget, const char *cellStyle, const Wt::WString &toolTip,
               bool isReadOnly = false);

  /// Adds a row with a widget that is not bound to the store.
  void addRow(const Wt::WString &label, Wt::WWidget *widget, const char *cellStyle,
              const Wt::WString &toolTip = Wt::WString(), bool isReadOnly = false);

  /// Enables a field exactly while a condition holds, which is looked at after each read and each change.
  void enableWhile(Wt::WWidget *field, std::function<bool()> condition)
  {
    dependencies.push_back([field, condition = std::move(condition)] { field->setDisabled(!condition()); });
  }

  /// A change of the field is written only while a condition holds.
  void sendWhile(WWidgetZel *field, std::function<bool()> condition);

  /// The field is written before all others, where each writes itself.
  void writeFirst(WWidgetZel *field);

  /// What must hold beside the fields' own rules for the values of one record to be saved.
  void require(std::function<bool()> rule) { rules.push_back(std::move(rule)); }

  /// Adjusts what else depends on other fields, after each read and each change.
  virtual void adjustDependentWidgets();

  bool isIndexed() const { return !(options & SingleRecord); }

private:
  struct Group {
    std::function<bool(Indexes &)> find; ///< empty: the records that a read brings
  };
  struct Row {
    WWidgetZel *field;              ///< null if `read` does it
    Wt::WFormWidget *form;          ///< null if it has no rules
    std::function<bool()> hasFocus; ///< empty if it is not edited
    std::vector<std::string> path;  ///< the objects within the record
    const char *param;              ///< null: nothing is asked for
    bool readsItself;               ///< whatever the path
    std::size_t group;
    std::function<bool(Indexes &)> read;
    std::function<bool()> isSent; ///< empty: always
    bool unread;                  ///< the last read failed
  };

  void enterRow(WWidgetZel *field, Wt::WFormWidget *form, std::function<bool()> hasFocus, const char *param);
  void enterReader(std::function<bool(Indexes &)> read);
  bool isReadAtOnce(const Row &row) const;
  void readGroup(std::size_t group, const Indexes &brought, bool force);
  void readAtOnce(std::size_t group, Indexes &indexes, bool force);
  void selectFor(std::size_t group, json_t *request) const;
  bool fetch(std::size_t group, const Indexes &indexes, json_t *&response) const;
  bool writeFieldwise(Indexes &indexes, std::vector<std::string> &errors);
  bool writeRecord(unsigned int index, std::vector<std::string> &errors, bool &refused);
  void fill(json_t *params) const;
  bool isWritten(const Row &row) const;
  bool counts(const Row &row) const;
  bool follows(const Row &row) const;

  const int options;
  const std::string resourceName; ///< without a path
  const char *resource;           ///< of the rows that follow, with its path
  std::vector<std::string> path;  ///< of the rows that follow
  bool readApart;                 ///< the rows that follow read themselves
  int fieldWidth;
  bool edited;
  bool givesWay = false;
  Indexes recordsRead;
  std::vector<Group> groups;
  std::vector<Row> rows;
  std::vector<std::function<void()>> dependencies;
  std::vector<std::function<bool()>> rules;
  Wt::Signal<> contentChangedSignal;
};

template <class Field>
Field *WSettingsTable::addField(const Wt::WString &label, Field *field, const Wt::WString &toolTip,
                                const char *param)
{
  addRow(label, field, "nevo-attribute-table-read-write-cell", toolTip);
  enterField(field, param);
  return field;
}

template <class Field>
Field *WSettingsTable::addReadOnlyField(const Wt::WString &label, Field *field, const char *param,
                                        const Wt::WString &toolTip)
{
  addRow(label, field, "nevo-attribute-table-read-only-cell", toolTip, true);
  enterRow(field, 0, std::function<bool()>(), param);
  return field;
}

#endif // WIDGETS_WSETTINGS_TABLE_H_
