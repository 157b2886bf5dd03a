// SPDX-License-Identifier: MIT
// A record list is refreshed every few seconds: the model is emptied, gets its rows again and is filled cell
// by cell, while a sorting proxy follows. Prints the CPU time of such rebuilds and the memory of the model as
// JSON.
//
// usage: model_rebuild [rows] [columns] [rebuilds]

#include <Wt/WSortFilterProxyModel>
#include <Wt/WStandardItemModel>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <malloc.h>
#include <string>
#include <vector>

namespace
{

double cpuSeconds()
{
  timespec now;
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// The texts of a list whose sort column comes in the order that `step` makes: 1 sorted, else mixed up.
std::vector<std::string> textsOf(int rows, int columns, int step)
{
  std::vector<std::string> texts;
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      char text[64];
      std::snprintf(text, sizeof text, "Column %d %07d", column,
                    static_cast<int>(static_cast<long>(row) * step % rows));
      texts.emplace_back(text);
    }
  }
  return texts;
}

void rebuild(Wt::WStandardItemModel &model, const std::vector<std::string> &texts, int rows, int columns)
{
  model.removeRows(0, model.rowCount());
  model.insertRows(0, rows);
  auto text = texts.begin();
  for (int row = 0; row < rows; ++row)
    for (int column = 0; column < columns; ++column)
      model.setData(row, column, *text++, Wt::EditRole);
}

struct Outcome {
  double seconds;
  long signals;
  double bytesPerCell;
};

Outcome measure(int rows, int columns, int rebuilds, int step, Wt::SortOrder order)
{
  const std::vector<std::string> texts = textsOf(rows, columns, step);
  const std::size_t before = mallinfo2().uordblks;
  Wt::WStandardItemModel model(0, columns);
  rebuild(model, texts, rows, columns);
  const double bytes = static_cast<double>(mallinfo2().uordblks - before) / rows / columns;

  Wt::WSortFilterProxyModel proxy;
  proxy.setSourceModel(&model);
  proxy.setDynamicSortFilter(true);
  proxy.sort(1, order);
  long signals = 0;
  proxy.rowsInserted().connect(std::bind([&signals] { ++signals; }));
  proxy.rowsRemoved().connect(std::bind([&signals] { ++signals; }));
  const double start = cpuSeconds();
  for (int i = 0; i < rebuilds; ++i)
    rebuild(model, texts, rows, columns);
  return {cpuSeconds() - start, signals, bytes};
}

} // namespace

int main(int argc, char *argv[])
{
  const int rows = argc > 1 ? std::atoi(argv[1]) : 5000;
  const int columns = argc > 2 ? std::atoi(argv[2]) : 6;
  const int rebuilds = argc > 3 ? std::atoi(argv[3]) : 4;
  if (rows < 1 || columns < 2 || rebuilds < 1) {
    std::fprintf(stderr, "usage: model_rebuild [rows >= 1] [columns >= 2] [rebuilds >= 1]\n");
    return 2;
  }
  const int mixedUp = 1237; // prime, so that every row appears once
  const Outcome sorted = measure(rows, columns, rebuilds, 1, Wt::AscendingOrder);
  const Outcome reversed = measure(rows, columns, rebuilds, 1, Wt::DescendingOrder);
  const Outcome mixed = measure(rows, columns, rebuilds, mixedUp, Wt::AscendingOrder);
  std::printf("{\"rows\": %d, \"columns\": %d, \"rebuilds\": %d, \"bytes_per_cell\": %.1f, "
              "\"sorted_cpu_s\": %.4f, \"reversed_cpu_s\": %.4f, \"mixed_cpu_s\": %.4f, "
              "\"mixed_row_signals\": %ld}\n",
              rows, columns, rebuilds, sorted.bytesPerCell, sorted.seconds, reversed.seconds, mixed.seconds,
              mixed.signals);
  return 0;
}
