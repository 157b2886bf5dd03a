// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WWIDGET_ZEL_H_
#define WIDGETS_WWIDGET_ZEL_H_

#include <Wt/WSignal>
#include <Wt/WString>
#include <jansson.h>
#include <string>
#include <vector>

/**
 * What a widget has beside its Wt base when it shows, and perhaps edits, one parameter of a store resource.
 *
 * It keeps no copy of the store: what it shows is the last read. A read never overwrites an edit of the user
 * unless forced, and only what the user changed is written. The widget may stand for the same parameter of
 * several records: a read then shows the value on which all agree, or a neutral blank, and a write gives each
 * of them the same value. Which records are meant is told at every call. A widget shows no error: it returns
 * true for a failure and appends the texts, if there are any, to `errors`.
 */
class WWidgetZel
{
public:
  /// The names must outlive the widget. A resource that is not `indexed` has one record; the indexes that a
  /// call brings mean nothing then.
  WWidgetZel(const char *resource, const char *param, bool indexed);
  virtual ~WWidgetZel();
  WWidgetZel(const WWidgetZel &) = delete;
  WWidgetZel &operator=(const WWidgetZel &) = delete;

  /// Fetches the parameter with one request for each record.
  virtual bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                                bool force) = 0;
  /// Writes with one request for each record. This one, of widgets that only show, writes nothing and fails.
  virtual bool writeToDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors);
  /// Adds the value to the parameters of a request that is being composed for many widgets, if it was
  /// changed.
  virtual void setZelParam(json_t *params);
  /// Takes the value out of a response that was fetched for many widgets, with a row for each record.
  virtual void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) = 0;

  /// Whether the user changed the value since it was last read or written.
  virtual bool hasChangedContent();
  virtual void clearContentChanged();
  virtual void setContentChanged();

  /// Whether the widget is blank because the records differ that were read. A field that is edited shows it
  /// by a mark and a tool tip, and is not invalid for being blank until the user changes it.
  bool showsDifference() const { return differing; }
  /// Whether such a field must not be left blank.
  bool isMandatoryOtherwise() const { return mandatoryOtherwise; }

  /// Whether the user typed something that the widget has not looked at yet, and the look at it.
  virtual bool hasUnnoticedEdit() const { return false; }
  virtual void noticeEdit() {}

  /// While a widget gives way, a read also changes it where the user is in it or has typed something that
  /// was not looked at: for reads of other records than those that the widget shows.
  virtual void setGivesWay(bool gives) { givesWay = gives; }

  /// Emitted when the user changes the value.
  Wt::Signal<> &contentChanged() { return contentChangedSignal; }
  void signalAContentChange();

protected:
  /// What came of a read over the records that are meant.
  enum Agreement {
    NoRecords,  ///< there is nothing to read
    Unreadable, ///< a record could not be read
    Differing,  ///< two records differ
    Agreeing    ///< all have the value
  };

  /// Whether a read has to leave the widget alone because of an edit.
  bool keepsEdit(bool force) const { return changedContent && !force; }
  /// The same because the user is in it.
  bool keepsFocus(bool focused) const { return focused && !givesWay; }
  /// Whether records should be named and none are.
  bool namesNoRecord(const std::vector<unsigned int> &indexes) const { return indexed && indexes.empty(); }

  /// Reads the records in order, until one fails or differs from the first. `value` stays as it was unless
  /// all agree. `read` takes a record, 0 if not `indexed`, and a value to fill, and returns 0 or 1.
  template <typename Value, typename Read>
  Agreement merge(const std::vector<unsigned int> &indexes, Read read, Value &value) const;

  /// The same with requests to the store.
  Agreement readCommon(const std::vector<unsigned int> &indexes, std::string &value,
                       std::vector<std::string> &errors) const;
  Agreement readCommon(const std::vector<unsigned int> &indexes, unsigned int &value,
                       std::vector<std::string> &errors) const;
  Agreement readCommon(const std::vector<unsigned int> &indexes, const char *parameter, unsigned int &value,
                       std::vector<std::string> &errors) const;
  /// The same from a response, without a request.
  Agreement extractCommon(json_t *response, const std::vector<unsigned int> &indexes,
                          std::string &value) const;
  Agreement extractCommon(json_t *response, const std::vector<unsigned int> &indexes,
                          unsigned int &value) const;
  Agreement extractCommon(json_t *response, const std::vector<unsigned int> &indexes, const char *parameter,
                          unsigned int &value) const;

  /// Write one record; 0 stands for the record of a resource that has only one. True on failure.
  bool writeOne(unsigned int index, const std::string &value, std::vector<std::string> &errors) const;
  bool writeOne(unsigned int index, unsigned int value, std::vector<std::string> &errors) const;

  /// Add a value to the parameters of a request.
  void addTo(json_t *params, const std::string &value) const;
  void addTo(json_t *params, unsigned int value) const;

  /// The user has changed the value.
  void endEdit();
  /// Note that a read has been shown; the result is that of readFromDatabase().
  bool endRead(Agreement agreement);
  void endBulkRead(Agreement agreement);

  /// The records that a read or write of one request per record goes through: index 0 if not `indexed`.
  std::vector<unsigned int> addressed(const std::vector<unsigned int> &indexes) const;

  const char *const resource;
  const char *const param;
  const bool indexed;
  bool changedContent;
  bool givesWay = false;

private:
  void showDifference(bool differs);

  bool differing = false;
  bool mandatoryOtherwise = false;
  Wt::WString ownToolTip; ///< which the mark's covers
  Wt::Signal<> contentChangedSignal;
};

template <typename Value, typename Read>
WWidgetZel::Agreement WWidgetZel::merge(const std::vector<unsigned int> &indexes, Read read,
                                        Value &value) const
{
  if (namesNoRecord(indexes))
    return NoRecords;
  Value first = Value();
  bool isFirst = true;
  for (const unsigned int index : addressed(indexes)) {
    Value single = Value();
    if (read(index, single))
      return Unreadable;
    if (isFirst)
      first = single;
    else if (single != first)
      return Differing;
    isFirst = false;
  }
  value = first;
  return Agreeing;
}

#endif // WIDGETS_WWIDGET_ZEL_H_
