// SPDX-License-Identifier: MIT
#include "WWidgetZel.h"

#include "Db.h"
#include "Text.h"
#include "ZelObj.h"

#include <Wt/WFormWidget>
#include <Wt/WValidator>

WWidgetZel::WWidgetZel(const char *resourceName, const char *parameterName, bool isIndexed)
    : resource(resourceName), param(parameterName), indexed(isIndexed), changedContent(false)
{
}

WWidgetZel::~WWidgetZel() = default;

bool WWidgetZel::writeToDatabase(std::vector<unsigned int> &, std::vector<std::string> &)
{
  return true;
}

void WWidgetZel::setZelParam(json_t *) {}

bool WWidgetZel::hasChangedContent()
{
  return changedContent;
}

void WWidgetZel::clearContentChanged()
{
  changedContent = false;
}

void WWidgetZel::setContentChanged()
{
  changedContent = true;
}

void WWidgetZel::signalAContentChange()
{
  contentChangedSignal.emit();
}

std::vector<unsigned int> WWidgetZel::addressed(const std::vector<unsigned int> &indexes) const
{
  return indexed ? indexes : std::vector<unsigned int>(1, 0);
}

WWidgetZel::Agreement WWidgetZel::readCommon(const std::vector<unsigned int> &indexes, std::string &value,
                                             std::vector<std::string> &errors) const
{
  const auto read = [&](unsigned int index, std::string &single) {
    return Db_db.readString(resource, index, param, single, errors);
  };
  return merge(indexes, read, value);
}

WWidgetZel::Agreement WWidgetZel::readCommon(const std::vector<unsigned int> &indexes, unsigned int &value,
                                             std::vector<std::string> &errors) const
{
  return readCommon(indexes, param, value, errors);
}

WWidgetZel::Agreement WWidgetZel::readCommon(const std::vector<unsigned int> &indexes, const char *parameter,
                                             unsigned int &value, std::vector<std::string> &errors) const
{
  const auto read = [&](unsigned int index, unsigned int &single) {
    return Db_db.readUInt32(resource, index, parameter, single, errors);
  };
  return merge(indexes, read, value);
}

WWidgetZel::Agreement WWidgetZel::extractCommon(json_t *response, const std::vector<unsigned int> &indexes,
                                                std::string &value) const
{
  if (namesNoRecord(indexes))
    return NoRecords;
  bool same = true;
  const unsigned int failed = indexed && indexes.size() > 1
                                  ? Db_db.extractStringMerge(response, indexes, param, value, same)
                                  : Db_db.extractString(response, param, value);
  return failed ? Unreadable : same ? Agreeing : Differing;
}

WWidgetZel::Agreement WWidgetZel::extractCommon(json_t *response, const std::vector<unsigned int> &indexes,
                                                unsigned int &value) const
{
  return extractCommon(response, indexes, param, value);
}

WWidgetZel::Agreement WWidgetZel::extractCommon(json_t *response, const std::vector<unsigned int> &indexes,
                                                const char *parameter, unsigned int &value) const
{
  if (namesNoRecord(indexes))
    return NoRecords;
  bool same = true;
  const unsigned int failed = indexed && indexes.size() > 1
                                  ? Db_db.extractUInt32Merge(response, indexes, parameter, value, same)
                                  : Db_db.extractUInt32(response, parameter, value);
  return failed ? Unreadable : same ? Agreeing : Differing;
}

bool WWidgetZel::writeOne(unsigned int index, const std::string &value,
                          std::vector<std::string> &errors) const
{
  return Db_db.writeString(resource, index, param, value, errors) != 0;
}

bool WWidgetZel::writeOne(unsigned int index, unsigned int value, std::vector<std::string> &errors) const
{
  return Db_db.writeUInt32(resource, index, param, value, errors) != 0;
}

void WWidgetZel::addTo(json_t *params, const std::string &value) const
{
  ZelObj_setString(params, param, value.c_str());
}

void WWidgetZel::addTo(json_t *params, unsigned int value) const
{
  ZelObj_setUInt32(params, param, value);
}

bool WWidgetZel::endRead(Agreement agreement)
{
  if (agreement == Unreadable)
    return true;
  changedContent = false;
  showDifference(agreement == Differing);
  return false;
}

void WWidgetZel::endBulkRead(Agreement agreement)
{
  if (agreement != NoRecords)
    changedContent = false;
  showDifference(agreement == Differing);
}

void WWidgetZel::endEdit()
{
  changedContent = true;
  showDifference(false);
  signalAContentChange();
}

void WWidgetZel::showDifference(bool differs)
{
  Wt::WFormWidget *form = dynamic_cast<Wt::WFormWidget *>(this);
  if (!form)
    return;
  // A field that the user is in keeps its text.
  differs = differs && form->valueText().empty();
  if (differs == differing)
    return;
  differing = differs;
  if (differs)
    mandatoryOtherwise = form->validator() && form->validator()->isMandatory();
  if (mandatoryOtherwise && form->validator()) {
    form->validator()->setMandatory(!differs);
    // The text was judged when it was set.
    if (differs)
      form->validate();
  }
  if (differs) {
    ownToolTip = form->toolTip();
    form->addStyleClass("nevo-differs");
    form->setToolTip(text("The selected records differ here."));
  } else {
    form->removeStyleClass("nevo-differs");
    form->setToolTip(ownToolTip);
  }
}
