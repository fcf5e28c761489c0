// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <algorithm>
#include <map>
#include <random>
#include <set>

#include "grid_fixture.h"

namespace {

/// What a grid ought to hold, kept the plain way.
struct PlainRow {
  unsigned id;
  QString name;
  QString degrees;
  bool checked;
  bool selected = false;
  bool operator==(const PlainRow&) const = default;
};

class PlainGrid {
 public:
  std::vector<PlainRow> rows;
  std::map<unsigned, unsigned> copyMap;

  void Add(const QString& name, const QString& degrees, bool checked) {
    Unselect();
    rows.push_back({++lastId_, name, degrees, checked, true});
  }

  void Select(const std::set<int>& selected) {
    for (int row = 0; row < Count(); ++row) At(row).selected = selected.contains(row);
  }

  bool Delete() {
    const auto first = std::ranges::find_if(rows, &PlainRow::selected);
    if (first == rows.end()) return false;
    const int top = static_cast<int>(first - rows.begin());
    for (const PlainRow& row : rows) {
      if (row.selected) copyMap.erase(row.id);
    }
    std::erase_if(rows, [](const PlainRow& row) { return row.selected; });
    if (Count() > 0) At(std::min(top, Count() - 1)).selected = true;
    return true;
  }

  bool Duplicate() {
    const std::vector<PlainRow> before = rows;
    for (const PlainRow& source : before) {
      if (!source.selected) continue;
      rows.push_back({++lastId_, CopyName(source.name), source.degrees, source.checked, true});
      copyMap[lastId_] = source.id;
    }
    if (rows.size() == before.size()) return false;
    for (int row = 0; row < static_cast<int>(before.size()); ++row) At(row).selected = false;
    return true;
  }

  /// One row at a time: a selected row changes places with a neighbour that is not.
  bool Move(int step) {
    bool moved = false;
    const int count = Count();
    for (int i = 0; i < count; ++i) {
      const int row = step < 0 ? i : count - 1 - i;
      const int to = row + step;
      if (!At(row).selected || to < 0 || to >= count || At(to).selected) continue;
      std::swap(At(row), At(to));
      moved = true;
    }
    return moved;
  }

  bool MoveToEdge(int step) {
    const bool moved = Move(step);
    while (Move(step)) {
    }
    return moved;
  }

  [[nodiscard]] int Count() const { return static_cast<int>(rows.size()); }
  [[nodiscard]] unsigned LastId() const { return lastId_; }
  PlainRow& At(int row) { return rows[static_cast<std::size_t>(row)]; }

 private:
  void Unselect() { Select({}); }

  [[nodiscard]] QString CopyName(const QString& text) const {
    const auto isTaken = [&](const QString& name) {
      return std::ranges::any_of(rows, [&](const PlainRow& row) { return row.name == name; });
    };
    QString name = "Copy of " + text;
    for (int n = 2; isTaken(name); ++n) name = QString("Copy (%1) of ").arg(n) + text;
    return name;
  }

  unsigned lastId_ = 0;
};

class GridRandom : public GridFixture {
 protected:
  std::vector<PlainRow> Shown() {
    std::vector<PlainRow> rows;
    for (int row = 0; row < grid.RowCount(); ++row) {
      rows.push_back({grid.RowId(row), grid.CellText(row, kName), grid.CellText(row, kDegrees),
                      grid.CellChecked(row, kBox)});
    }
    for (const auto& [first, last] : grid.SelectedRowBlocks()) {
      for (int row = first; row <= last; ++row) rows[static_cast<std::size_t>(row)].selected = true;
    }
    return rows;
  }

  void SelectSome(const std::set<int>& rows) {
    TableAccess::Blocks blocks;
    for (const int row : rows) blocks.emplace_back(row, row);
    grid.SelectBlocks(blocks);
    plain.Select(rows);
  }

  int Draw(int below) { return std::uniform_int_distribution(0, below - 1)(random); }

  void Step() {
    const int rows = plain.Count();
    switch (Draw(rows > 60 ? 9 : 11)) {
      case 0:
        ASSERT_EQ(grid.DeleteSelectedRows(), plain.Delete());
        break;
      case 1:
        ASSERT_EQ(grid.MoveSelectedUp(), plain.Move(-1));
        break;
      case 2:
        ASSERT_EQ(grid.MoveSelectedDown(), plain.Move(1));
        break;
      case 3:
        ASSERT_EQ(grid.MoveSelectedToTop(), plain.MoveToEdge(-1));
        break;
      case 4:
        ASSERT_EQ(grid.MoveSelectedToBottom(), plain.MoveToEdge(1));
        break;
      case 5:
      case 6: {
        std::set<int> some;
        for (int i = Draw(7); i > 0 && rows > 0; --i) some.insert(Draw(rows));
        SelectSome(some);
        break;
      }
      case 7:
      case 8:
        if (rows > 0) Edit(Draw(rows));
        break;
      case 9: {
        const QString name(QChar('a' + Draw(4)));
        const bool checked = Draw(2) == 1;
        plain.Add(name, "10.00", checked);
        grid.AddRow(Values(name, "10", "Red", checked));
        break;
      }
      default:
        ASSERT_EQ(grid.DuplicateSelectedRows(), plain.Duplicate());
    }
  }

  void Edit(int row) {
    // A click selects its cell.
    plain.Select({row});
    const int number = Draw(400);
    switch (Draw(3)) {
      case 0:
        grid.EditCell(row, kDegrees, QString::number(number));
        if (number <= 360) plain.At(row).degrees = QString::number(number) + ".00";
        break;
      case 1:
        grid.EditCell(row, kName, QChar('a' + number % 4));
        plain.At(row).name = QChar('a' + number % 4);
        break;
      default:
        grid.ToggleCell(row, kBox);
        plain.At(row).checked = !plain.At(row).checked;
    }
  }

  PlainGrid plain;
  std::mt19937 random;
};

std::ostream& operator<<(std::ostream& out, const PlainRow& row) {
  return out << row.id << (row.selected ? "*" : "") << ' ' << row.name.toStdString() << ' '
             << row.degrees.toStdString() << (row.checked ? " x" : "");
}

TEST_F(GridRandom, AgreesWithAPlainModel) {
  const unsigned seed = std::random_device{}();
  random.seed(seed);
  for (int step = 0; step < 6000; ++step) {
    ASSERT_NO_FATAL_FAILURE(Step()) << "step " << step << " of seed " << seed;
    ASSERT_EQ(Shown(), plain.rows) << "step " << step << " of seed " << seed;
    if (step % 100 != 0) continue;
    for (unsigned id = 1; id <= plain.LastId(); ++id) {
      const auto source = plain.copyMap.find(id);
      ASSERT_EQ(grid.SourceId(id), source == plain.copyMap.end() ? 0u : source->second)
          << "step " << step << " of seed " << seed;
    }
  }
  const int row = grid.RowCount() / 2;
  EXPECT_EQ(grid.RowOfId(grid.RowId(row)), grid.RowCount() > 0 ? row : -1);
}

}  // namespace
