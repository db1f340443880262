#pragma once
// What a cell or box of an input page holds: a number, a function (a text
// beginning with "="), a reference to a file of values (beginning with
// "file"), or nothing. Only functions go to the engine's formula test.
#include <string_view>

namespace tamsic {

enum class CellKind { Empty, Number, Function, FileReference, Other };

CellKind ClassifyCell(std::string_view text);

}  // namespace tamsic
