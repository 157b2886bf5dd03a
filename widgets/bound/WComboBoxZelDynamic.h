// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCOMBO_BOX_ZEL_DYNAMIC_H_
#define WIDGETS_WCOMBO_BOX_ZEL_DYNAMIC_H_

#include "WWidgetZel.h"

#include <Wt/WComboBox>
#include <list>
#include <string>
#include <vector>

/**
 * A text parameter whose choices are the texts that a parameter of another resource has in its records.
 *
 * The last item is blank and stands for no value and for values that differ. Every read fetches the choices
 * anew, which takes a request more. A read leaves a combo alone that has the focus, forced or not.
 *
 * Subclasses have other choices, or another parameter for which a choice stands.
 */
class WComboBoxZelDynamic : public Wt::WComboBox, public WWidgetZel
{
public:
  WComboBoxZelDynamic(const char *resource, const char *param, bool indexed, const char *choicesResource,
                      const char *choicesParam, Wt::WContainerWidget *parent = 0);

  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  /// A record that fails keeps those behind it from being written. The blank item is written only where there
  /// are no several records; else nothing is, which is a failure without a text.
  bool writeToDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors) override;
  void setZelParam(json_t *params) override;
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;
  virtual void contentChangedHandler();
  /// Fetches the choices. After a failure, which returns true, there are no items at all.
  virtual bool updateListOfChoices();

protected:
  /// Asks for what choicesIn() needs.
  virtual void selectChoices(json_t *request) const;
  /// The texts of the items, in order, without the blank one.
  virtual std::list<std::string> choicesIn(json_t *response) const;
  /// The part of an item's text that is the choice.
  virtual std::string choiceOf(const std::string &itemText) const { return itemText; }

  /// Find the choice that the parameter stands for; empty where records differ.
  virtual Agreement readChoice(const std::vector<unsigned int> &indexes, std::string &choice,
                               std::vector<std::string> &errors) const;
  virtual Agreement extractChoice(json_t *response, const std::vector<unsigned int> &indexes,
                                  std::string &choice) const;
  /// Writes a choice to each record, until one fails. True on failure.
  virtual bool writeChoice(const std::vector<unsigned int> &records, const std::string &choice,
                           std::vector<std::string> &errors) const;
  virtual void addChoice(json_t *params, const std::string &choice) const;

  /// The same for the value that the store has for a choice.
  template <typename Value>
  bool writeEach(const std::vector<unsigned int> &records, const Value &value,
                 std::vector<std::string> &errors) const
  {
    for (const unsigned int record : records) {
      if (writeOne(record, value, errors))
        return true;
    }
    return false;
  }

private:
  bool show(Agreement agreement, const std::string &choice);
  std::string currentChoice() const;

  const char *const choicesResource;
  const char *const choicesParam;
};

#endif // WIDGETS_WCOMBO_BOX_ZEL_DYNAMIC_H_
