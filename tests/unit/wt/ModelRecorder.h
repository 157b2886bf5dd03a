// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_WT_MODEL_RECORDER_H_
#define TESTS_UNIT_WT_MODEL_RECORDER_H_

#include <Wt/WAbstractItemModel>
#include <string>

/// Writes down what a model emits: "+2-4" rows inserted, "-1-1" rows removed, "=0:1-0:2" data changed, "L"
/// layout changed, "R" reset, "|+0-1" columns.
class ModelRecorder : public Wt::WObject
{
public:
  explicit ModelRecorder(Wt::WAbstractItemModel &model)
  {
    model.rowsInserted().connect(this, &ModelRecorder::rowsInserted);
    model.rowsRemoved().connect(this, &ModelRecorder::rowsRemoved);
    model.columnsInserted().connect(this, &ModelRecorder::columnsInserted);
    model.columnsRemoved().connect(this, &ModelRecorder::columnsRemoved);
    model.dataChanged().connect(this, &ModelRecorder::dataChanged);
    model.headerDataChanged().connect(this, &ModelRecorder::headerDataChanged);
    model.layoutChanged().connect(this, &ModelRecorder::layoutChanged);
    model.modelReset().connect(this, &ModelRecorder::modelReset);
  }

  /// What came since the last call.
  std::string take()
  {
    std::string result;
    result.swap(log_);
    return result;
  }

private:
  static std::string range(int first, int last) { return std::to_string(first) + "-" + std::to_string(last); }
  static std::string cell(const Wt::WModelIndex &index)
  {
    return std::to_string(index.row()) + ":" + std::to_string(index.column());
  }

  void rowsInserted(Wt::WModelIndex, int first, int last) { add("+" + range(first, last)); }
  void rowsRemoved(Wt::WModelIndex, int first, int last) { add("-" + range(first, last)); }
  void columnsInserted(Wt::WModelIndex, int first, int last) { add("|+" + range(first, last)); }
  void columnsRemoved(Wt::WModelIndex, int first, int last) { add("|-" + range(first, last)); }
  void dataChanged(Wt::WModelIndex first, Wt::WModelIndex last) { add("=" + cell(first) + "-" + cell(last)); }
  void headerDataChanged(Wt::Orientation, int first, int last) { add("H" + range(first, last)); }
  void layoutChanged() { add("L"); }
  void modelReset() { add("R"); }
  void add(const std::string &what) { log_ += (log_.empty() ? "" : " ") + what; }

  std::string log_;
};

#endif // TESTS_UNIT_WT_MODEL_RECORDER_H_
