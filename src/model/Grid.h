#pragma once
// A rectangular table of texts, rows and columns counted from 0: the in-memory
// form of every grid of a scenario (heading row and column included).
#include <cstddef>
#include <string>
#include <vector>

namespace tamsic {

class Grid {
 public:
  Grid() = default;
  Grid(std::size_t rows, std::size_t cols) : rows_(rows), cols_(cols), cells_(rows * cols) {}

  std::size_t rows() const { return rows_; }
  std::size_t cols() const { return cols_; }
  bool empty() const { return cells_.empty(); }

  const std::string& at(std::size_t row, std::size_t col) const { return cells_.at(index(row, col)); }
  std::string& at(std::size_t row, std::size_t col) { return cells_.at(index(row, col)); }

  // Changes the size and keeps the cells that lie inside both the old and the new table.
  void resize(std::size_t rows, std::size_t cols);

  bool operator==(const Grid&) const = default;

 private:
  std::size_t index(std::size_t row, std::size_t col) const;

  std::size_t rows_ = 0;
  std::size_t cols_ = 0;
  std::vector<std::string> cells_;
};

}  // namespace tamsic
