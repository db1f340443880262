#include "model/Grid.h"

#include <algorithm>
#include <stdexcept>

namespace tamsic {

void Grid::resize(std::size_t rows, std::size_t cols) {
  Grid resized(rows, cols);
  for (std::size_t r = 0; r < std::min(rows, rows_); ++r)
    for (std::size_t c = 0; c < std::min(cols, cols_); ++c) resized.at(r, c) = std::move(at(r, c));
  *this = std::move(resized);
}

std::size_t Grid::index(std::size_t row, std::size_t col) const {
  if (row >= rows_ || col >= cols_)
    throw std::out_of_range("grid cell (" + std::to_string(row) + ", " + std::to_string(col) +
                            ") outside a table of " + std::to_string(rows_) + " x " +
                            std::to_string(cols_));
  return row * cols_ + col;
}

}  // namespace tamsic
