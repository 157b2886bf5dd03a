// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WEDIT_ZEL_H_
#define WIDGETS_WEDIT_ZEL_H_

#include "WWidgetZel.h"

#include <Wt/WContainerWidget>
#include <Wt/WString>
#include <string>

/**
 * What the bound editors of text have in common: `Edit` is a WLineEditPlus or a WTextAreaPlus, `Value` what
 * the store holds, a std::string or an unsigned int.
 */
template <class Edit, class Value> class WEditZel : public Edit, public WWidgetZel
{
public:
  WEditZel(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent)
      : Edit(parent), WWidgetZel(resource, param, indexed)
  {
    this->valueChanged().connect(this, &WEditZel::contentChangedHandler);
  }

  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override
  {
    if (keepsEdit(force))
      return false;
    Value value = Value();
    const Agreement agreement = readCommon(indexes, value, errors);
    if (agreement != Unreadable)
      this->setText(agreement == Agreeing ? textOfRead(value) : Wt::WString());
    return endRead(agreement);
  }

  /// A record that fails keeps those behind it from being written.
  bool writeToDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors) override
  {
    if (!changedContent || namesNoRecord(indexes))
      return false;
    bool failed = false;
    for (const unsigned int index : addressed(indexes)) {
      failed = writeOne(index, valueOfText(), errors);
      if (failed)
        break;
    }
    changedContent = false;
    return failed;
  }

  void setZelParam(json_t *params) override
  {
    if (changedContent)
      addTo(params, valueOfText());
  }

  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override
  {
    if (keepsEdit(force))
      return;
    Value value = Value();
    const Agreement agreement = extractCommon(response, indexes, value);
    this->setText(agreement == Agreeing ? textOf(value) : Wt::WString());
    endBulkRead(agreement);
  }

  bool hasUnnoticedEdit() const override { return this->holdsUntoldEdit(); }
  void noticeEdit() override { this->lookForChange(); }
  void setGivesWay(bool gives) override
  {
    WWidgetZel::setGivesWay(gives);
    this->setYields(gives);
  }

  virtual void contentChangedHandler() { endEdit(); }

protected:
  /// The text that shows a value.
  virtual Wt::WString textOf(const Value &value) const = 0;
  /// The same in readFromDatabase().
  virtual Wt::WString textOfRead(const Value &value) const { return textOf(value); }
  /// The value that the present text stands for.
  virtual Value valueOfText() const = 0;
};

#endif // WIDGETS_WEDIT_ZEL_H_
