// Every export called through the real library, loaded as the program loads it.
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "engine/Engine.h"
#include "engine/EngineLibrary.h"
#include "functions/FunctionVariables.h"

namespace tamsic {
namespace {

std::vector<double> Values(const std::string& reply) {
  std::vector<double> values;
  std::istringstream in(reply);
  for (std::string value; std::getline(in, value, ';');) values.push_back(std::stod(value));
  return values;
}

TEST(EngineCalls, FormulaTestAnswersPolishOrErrorForTextsOfAnyLength) {
  LibraryEngine engine;
  EXPECT_EQ(engine.testFormula("n/k"), "Polish: / N K");
  EXPECT_EQ(engine.testFormula("file=rates.txt"), "Polish: file=rates.txt");
  // A Windows-1252 byte above 127 goes in and comes back in the reply.
  EXPECT_EQ(engine.testFormula("=N+\xE9t\xE9"), "Error: unexpected character '\xE9' at character 4");
  EXPECT_EQ(engine.testFormula(""), "Error: the function is empty at character 1");
  // The bare array of one code 0, as the program sends an empty text.
  const EngineExports& exports = EngineLibrary::get().exports;
  const std::int16_t empty[] = {0};
  TamsicVariant reply{};
  exports.testFormula(&reply, empty, 1);
  ASSERT_GT(reply.count, 0);
  EXPECT_EQ(reply.codes[0], 'E');
  exports.tamsicFreeVariant(&reply);
  EXPECT_EQ(reply.codes, nullptr);
  EXPECT_EQ(reply.count, 0);
  // No arguments at all must not crash the library either.
  exports.testFormula(&reply, nullptr, 0);
  exports.tamsicFreeVariant(&reply);
  exports.testFormula(nullptr, empty, 1);

  const std::string padded = "=N" + std::string(100000, ' ') + "+1";
  EXPECT_EQ(engine.testFormula(padded), "Polish: + N 1");
  const auto values = Values(engine.formulaGraphValues("=N*2", {11, 0, 9999, 0, 1, 1.0}));
  ASSERT_EQ(values.size(), 10000u);
  EXPECT_EQ(values.back(), 19998);
}

// The function editor names the graph's variable by its place in its own
// list; the engine must read every place as the same variable.
TEST(EngineCalls, TheEditorsVariablesAreTheEnginesVariables) {
  LibraryEngine engine;
  std::vector<std::string> names;
  for (const FunctionVariable& variable : FunctionVariables()) names.emplace_back(variable.name);
  for (int n = 1; n <= 10; ++n) names.push_back("GS" + std::to_string(n));
  ASSERT_EQ(names.size(), 96u);
  for (const std::string& name : names) {
    if (name == "E") continue;
    const std::string arguments = name == "KIN()" ? "1;2)" : "1)";
    const std::string use = name.ends_with("()") ? name.substr(0, name.size() - 1) + arguments : name;
    const int number = GraphVariableNumber(name);
    EXPECT_EQ(engine.formulaGraphValues("=" + use, {number, 7, 7, 0, 1, 1}), "7") << name << " as " << number;
    EXPECT_EQ(VariablesIn(use), std::vector<std::string>{name.substr(0, name.find('('))}) << name;
  }
  EXPECT_EQ(GraphVariableNumber("E"), 0);
  EXPECT_EQ(GraphVariableNumber("kk()"), 27);

  // Exponents, constants, functions, sexes and file names are not variables.
  EXPECT_EQ(VariablesIn("1.25e2*E+Pi+S='F'+SQRT(a)*n+A+IIS3(ID)+gs2"),
            (std::vector<std::string>{"S", "A", "N", "IIS3", "ID", "GS2"}));
  EXPECT_TRUE(VariablesIn("file=N.txt").empty());
  EXPECT_TRUE(VariablesIn("=FILE=K").empty());
}

TEST(EngineCalls, GraphValuesWithTheDefaultsOrRefused) {
  LibraryEngine engine;
  const auto graph = [&](const char* formula, GraphRequest range) { return engine.formulaGraphValues(formula, range); };
  const auto density = Values(graph("=(50-((50-20)*((N/K)^2)))*(N/(5+N))", {11, 0, 100, 0, 0, 50}));
  ASSERT_EQ(density.size(), 3u);
  EXPECT_EQ(density[0], 0);
  EXPECT_NEAR(density[1], 42.5 * 50 / 55, 1e-12);
  EXPECT_NEAR(density[2], 20.0 * 100 / 105, 1e-12);

  // K on the axis (N stays 100), then the other defaults: A = Y = 1, P = population.
  EXPECT_EQ(graph("=N/K", {9, 50, 200, 0, 0, 50}), "2;1;0.6666666666666666;0.5");
  EXPECT_EQ(graph("=A+Y+P+G+GS1", {1, 5, 5, 0, 3, 1}), "9");
  EXPECT_EQ(graph("=A+Y+P", {3, 0, 0, 0, 3, 1}), "5");
  EXPECT_EQ(graph("=FF(1)+FF(2)+KIN(1;2)", {24, 1, 3, 0, 0, 1}), "2;4;6");
  EXPECT_EQ(graph("=KIN(O;MATE)*GS10", {84, 2, 2, 0, 0, 1}), "0");
  EXPECT_EQ(graph("=GS10", {96, 0, 1, 0, 0, 0.5}), "0;0.5;1");
  // A step that does not divide the range exactly still reaches its end.
  EXPECT_EQ(Values(graph("=Y", {21, 0, 1, 0, 0, 0.1})).size(), 11u);
  EXPECT_EQ(graph("=Y", {21, 0, 100, 3, 0, 1}), "0;1;2");

  // Every call draws the same random numbers.
  EXPECT_EQ(graph("=RAND+NRAND+SRAND(Y)", {21, 0, 20, 0, 0, 1}), graph("=RAND+NRAND+SRAND(Y)", {21, 0, 20, 0, 0, 1}));

  // What cannot be drawn is refused.
  EXPECT_EQ(graph("=N/0", {11, 0, 2, 0, 0, 1}), "Error: the function has no finite value at N = 0");
  EXPECT_EQ(graph("=E", {4, 0, 2, 0, 0, 1}), "Error: E is a constant and cannot be graphed against");
  EXPECT_EQ(graph("=N", {97, 0, 2, 0, 0, 1}), "Error: there is no variable number 97");
  EXPECT_EQ(graph("=N", {11, 0, 2, 0, 0, 0}), "Error: the increment must be a number greater than 0");
  EXPECT_EQ(graph("=N", {11, 0, 2, 0, 0, NAN}), "Error: the increment must be a number greater than 0");
  EXPECT_EQ(graph("=N", {11, 5, 2, 0, 0, 1}), "Error: the range starts after it ends");
  EXPECT_EQ(graph("=N", {11, 0, 100000, 0, 0, 1}), "Error: the range holds more than 10000 points");
  EXPECT_EQ(graph("=N+", {11, 0, 1, 0, 0, 1}),
            "Error: expected a number, a name or '(' but found the end of the function at character 4");
}

// The formula calls keep no state between calls, so threads may share them.
TEST(EngineCalls, FormulaCallsFromSeveralThreads) {
  LibraryEngine engine;
  const std::string density = "=(50-((50-20)*((N/K)^2)))*(N/(5+N))";
  const std::string polish = engine.testFormula(density);
  const std::string values = engine.formulaGraphValues(density + "+RAND", {11, 0, 200, 0, 0, 1});
  std::vector<std::thread> threads;
  std::atomic<int> mismatches{0};
  for (int t = 0; t < 4; ++t)
    threads.emplace_back([&] {
      for (int i = 0; i < 50; ++i) {
        mismatches += engine.testFormula(density) != polish;
        mismatches += engine.formulaGraphValues(density + "+RAND", {11, 0, 200, 0, 0, 1}) != values;
      }
    });
  for (auto& thread : threads) thread.join();
  EXPECT_EQ(mismatches, 0);
}

TEST(EngineCalls, SimulationCallsWithoutAProjectThenProgressCancelAndClose) {
  LibraryEngine engine;
  const std::string missing = "Error: the project file /tmp/no-such-project.tpj does not exist";
  EXPECT_EQ(engine.tamsicsim("/tmp/no-such-project.tpj", "{A}", ""), missing);
  EXPECT_TRUE(engine.tamsicsim("", "", "").starts_with("Error: "));
  EXPECT_EQ(engine.tcheckin("/tmp/no-such-project.tpj {1}", 0), missing);
  const std::string noScenario = "Error: no scenario has been checked in yet (tcheckin)";
  EXPECT_EQ(engine.agedist(100), noScenario);
  EXPECT_EQ(engine.detGraphValues("", 0), noScenario);
  EXPECT_EQ(engine.findpolyg(2, {50, 40, 0, 1}), noScenario);
  EXPECT_EQ(engine.progress(), "0;0");
  EXPECT_TRUE(engine.cancel());
  engine.close();
  EXPECT_EQ(engine.testFormula("=1"), "Polish: 1");
}

}  // namespace
}  // namespace tamsic
