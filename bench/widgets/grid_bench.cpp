// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTableWidget>
#include <ctime>
#include <map>
#include <memory>
#include <vector>

#include "offscreen_main.h"
#include "widgets/dynamic_data_grid.h"

namespace {

using GUI::CDynamicDataGrid;
using GUI::CellKind;

constexpr GUI::CellKind kKinds[] = {CellKind::kDropDown, CellKind::kNumber, CellKind::kNumber,
                                    CellKind::kNumber,   CellKind::kNumber, CellKind::kText,
                                    CellKind::kCheckBox};
constexpr int kColumns = 7;

std::unique_ptr<CDynamicDataGrid> MakeGrid() {
  GUI::GridColumn columns[kColumns];
  for (int i = 0; i < kColumns; ++i) {
    columns[i].heading = QString::number(i);
    columns[i].kind = kKinds[i];
    columns[i].decimals = 2;
    columns[i].uniqueCopies = kKinds[i] == CellKind::kText;
  }
  return std::make_unique<CDynamicDataGrid>(columns, kColumns);
}

/// Texts as a page formats them, made before the clock runs.
std::vector<QStringList> MakeTexts(int rows) {
  std::vector<QStringList> texts;
  for (int row = 0; row < rows; ++row) {
    const QString number = QString::number(row % 360 + 0.25, 'f', 2);
    texts.push_back({QStringLiteral("Red|Green|Blue|None|Green"), number, QStringLiteral("0.95"),
                     QStringLiteral("850.00"), QString::number(row % 850, 'f', 2),
                     QStringLiteral("Segment %1").arg(row), QStringLiteral("true")});
  }
  return texts;
}

std::unique_ptr<CDynamicDataGrid> MakeFilledGrid(int rows) {
  auto grid = MakeGrid();
  for (const QStringList& texts : MakeTexts(rows)) grid->InsertRow(texts);
  return grid;
}

TableAccess::Blocks EveryOtherRow(int rows) {
  TableAccess::Blocks blocks;
  for (int row = 1; row < rows; row += 2) blocks.emplace_back(row, row);
  return blocks;
}

/// Processor seconds that a bare QTableWidget took for that many rows.
std::map<int, double>& TableWidgetSeconds() {
  static std::map<int, double> seconds;
  return seconds;
}

/// Runs `work` once a sample on what `prepare` makes, only the work under the clock. Returns the
/// processor seconds of a sample.
template <class Prepare, class Work>
double Measure(benchmark::State& state, Prepare prepare, Work work) {
  std::clock_t clocks = 0;
  for (auto _ : state) {
    state.PauseTiming();
    auto subject = prepare();
    const std::clock_t start = std::clock();
    state.ResumeTiming();
    work(*subject);
    state.PauseTiming();
    clocks += std::clock() - start;
    subject.reset();
    state.ResumeTiming();
  }
  const auto rows = static_cast<double>(state.range(0));
  state.counters["per_row"] = benchmark::Counter(
      rows, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
  return static_cast<double>(clocks) / CLOCKS_PER_SEC / static_cast<double>(state.iterations());
}

void FillTableWidget(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  const auto texts = MakeTexts(rows);
  TableWidgetSeconds()[rows] = Measure(
      state, [] { return std::make_unique<QTableWidget>(0, kColumns); },
      [&](QTableWidget& table) {
        for (const QStringList& row : texts) {
          const int place = table.rowCount();
          table.insertRow(place);
          for (int i = 0; i < kColumns; ++i) table.setItem(place, i, new QTableWidgetItem(row[i]));
        }
      });
}

void InsertRows(benchmark::State& state) {
  const auto texts = MakeTexts(static_cast<int>(state.range(0)));
  const double seconds = Measure(state, MakeGrid, [&](CDynamicDataGrid& grid) {
    for (const QStringList& row : texts) grid.InsertRow(row);
  });
  const auto bare = TableWidgetSeconds().find(static_cast<int>(state.range(0)));
  if (bare != TableWidgetSeconds().end()) {
    state.counters["to_QTableWidget"] = seconds / bare->second;
  }
}

/// As a person adds them: each is selected, in a grid on the screen.
void AddRowsShown(benchmark::State& state) {
  const auto texts = MakeTexts(static_cast<int>(state.range(0)));
  const auto shown = [] {
    auto grid = MakeGrid();
    grid->resize(800, 600);
    grid->show();
    QApplication::processEvents();
    return grid;
  };
  Measure(state, shown, [&](CDynamicDataGrid& grid) {
    for (const QStringList& row : texts) grid.AddRow(row);
  });
}

template <class Operation>
void OnSelection(benchmark::State& state, const TableAccess::Blocks& blocks, Operation run) {
  const auto prepare = [&] {
    auto grid = MakeFilledGrid(static_cast<int>(state.range(0)));
    grid->SelectBlocks(blocks);
    return grid;
  };
  Measure(state, prepare, run);
}

void MoveBlockToTop(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0));
  OnSelection(state, {{rows - rows / 10, rows - 1}},
              [](CDynamicDataGrid& grid) { grid.MoveSelectedToTop(); });
}

void MoveManyBlocksUp(benchmark::State& state) {
  OnSelection(state, EveryOtherRow(static_cast<int>(state.range(0))),
              [](CDynamicDataGrid& grid) { grid.MoveSelectedUp(); });
}

void DeleteManyBlocks(benchmark::State& state) {
  OnSelection(state, EveryOtherRow(static_cast<int>(state.range(0))),
              [](CDynamicDataGrid& grid) { grid.DeleteSelectedRows(); });
}

void DuplicateAll(benchmark::State& state) {
  OnSelection(state, {{0, static_cast<int>(state.range(0)) - 1}},
              [](CDynamicDataGrid& grid) { grid.DuplicateSelectedRows(); });
}

void FindRowsById(benchmark::State& state) {
  OnSelection(state, {}, [](CDynamicDataGrid& grid) {
    long long sum = 0;
    for (int row = 0; row < grid.RowCount(); ++row) sum += grid.RowOfId(grid.RowId(row));
    benchmark::DoNotOptimize(sum);
  });
}

#define GRID_BENCHMARK(name) \
  BENCHMARK(name)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)

GRID_BENCHMARK(FillTableWidget);
GRID_BENCHMARK(InsertRows);
GRID_BENCHMARK(AddRowsShown);
GRID_BENCHMARK(MoveBlockToTop);
GRID_BENCHMARK(MoveManyBlocksUp);
GRID_BENCHMARK(DeleteManyBlocks);
GRID_BENCHMARK(DuplicateAll);
GRID_BENCHMARK(FindRowsById);

}  // namespace

int main(int argc, char** argv) { return bench::RunOffscreen(argc, argv); }
