#pragma once
// A context with settable variables and a scripted RAND, recording what the
// function asked for.
#include <map>
#include <string>
#include <vector>

#include "formula/EvalContext.h"

namespace tamsic::formula::test {

class FakeContext : public EvalContext {
 public:
  std::map<Var, double> values;
  std::vector<double> uniforms;  // RAND answers in turn
  std::vector<std::string> asked;

  double variable(Var var) override {
    asked.emplace_back(VarName(var));
    const auto it = values.find(var);
    return it == values.end() ? 0.0 : it->second;
  }
  double indexed(IndexedVar var, double argument) override {
    asked.push_back(std::string(IndexedVarName(var)) + "(" + std::to_string(int(argument)) + ")");
    return 10.0 * argument;
  }
  double kinship(double first, double second) override { return first / 100.0 + second; }
  double uniform() override {
    const double value = uniforms.at(next_++ % uniforms.size());
    return value;
  }
  double normal() override { return -1.5; }
  double seededUniform(double seed) override { return seed / 1000.0; }
  double seededNormal(double seed) override { return -seed; }

 private:
  std::size_t next_ = 0;
};

}  // namespace tamsic::formula::test
