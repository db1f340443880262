#pragma once
// What is wrong with a function and where: the character (counted from 1 in
// the text as typed, a leading "=" included) at which the fault was found.
#include <stdexcept>
#include <string>

namespace tamsic::formula {

struct FormulaError {
  std::string message;
  int position = 0;

  // "unknown name "FOO" at character 3"
  std::string describe() const { return message + " at character " + std::to_string(position); }
};

// Carries a FormulaError out of the depths of the parser to its entry point,
// which turns it back into a returned error; it never leaves the library.
class FormulaFault : public std::runtime_error {
 public:
  explicit FormulaFault(FormulaError error)
      : std::runtime_error(error.describe()), error_(std::move(error)) {}
  const FormulaError& error() const { return error_; }

 private:
  FormulaError error_;
};

}  // namespace tamsic::formula
