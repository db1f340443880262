#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

#include "FakeContext.h"
#include "formula/Formula.h"
#include "formula/Parser.h"

namespace tamsic::formula {
namespace {

using test::FakeContext;

double Eval(const std::string& text, FakeContext& context) {
  const auto compiled = CompileText(text);
  if (compiled.error) ADD_FAILURE() << text << ": " << compiled.error->describe();
  return compiled.program ? compiled.program->evaluate(context) : std::nan("");
}

double Eval(const std::string& text) {
  FakeContext context;
  context.uniforms = {0.5};
  return Eval(text, context);
}

std::string Polish(const std::string& text) {
  const auto checked = Check(text);
  return checked.error ? "error: " + checked.error->describe() : checked.polish;
}

std::string ErrorOf(const std::string& text) {
  const auto checked = Check(text);
  return checked.error ? checked.error->describe() : "accepted: " + checked.polish;
}

TEST(Formula, PrecedenceAndAssociativity) {
  EXPECT_EQ(Eval("=1+2*3"), 7);
  EXPECT_EQ(Eval("=(1+2)*3"), 9);
  EXPECT_EQ(Eval("=10-4-3"), 3);
  EXPECT_EQ(Eval("=8/4/2"), 1);
  EXPECT_EQ(Eval("=2^3^2"), 512);
  EXPECT_EQ(Eval("=2*3^2"), 18);
  EXPECT_EQ(Eval("=2^3*2"), 16);
  EXPECT_EQ(Polish("=2^3^2"), "^ 2 ^ 3 2");
  EXPECT_EQ(Polish("=10-4-3"), "- - 10 4 3");
  EXPECT_EQ(Polish("=(50-((50-20)*((N/K)^2)))*(N/(5+N))"), "* - 50 * - 50 20 ^ / N K 2 / N + 5 N");
}

TEST(Formula, UnaryMinusBindsLessThanPower) {
  EXPECT_EQ(Eval("=-2^2"), -4);
  EXPECT_EQ(Eval("=(-2)^2"), 4);
  EXPECT_EQ(Eval("=2^-1"), 0.5);
  EXPECT_EQ(Eval("=-2^-2"), -0.25);
  EXPECT_EQ(Eval("=2^-3^2"), std::pow(2.0, -9.0));
  EXPECT_EQ(Eval("=--2"), 2);
  EXPECT_EQ(Eval("=+3-+2"), 1);
  EXPECT_EQ(Eval("=3*-2"), -6);
  EXPECT_EQ(Polish("=-2^2"), "NEG ^ 2 2");
}

TEST(Formula, ComparisonsAndLogicAreNumbers) {
  FakeContext context;
  context.uniforms = {0.005, 0.5};
  EXPECT_EQ(Eval("=1+(0.01>RAND)", context), 2);
  EXPECT_EQ(Eval("=1+(0.01>RAND)", context), 1);

  EXPECT_EQ(Eval("=2+1>2"), 1);
  EXPECT_EQ(Eval("=1<2=1"), 1);
  EXPECT_EQ(Eval("=(3>=3)+(3<=2)+(2!=2)+(2=2)+(1<2)"), 3);
  EXPECT_EQ(Eval("=NOT 1=2"), 1);
  EXPECT_EQ(Eval("=NOT 0 AND 0"), 0);
  EXPECT_EQ(Eval("=1 OR 0 AND 0"), 1);
  EXPECT_EQ(Eval("=(1 OR 0) AND 0"), 0);
  EXPECT_EQ(Eval("=5 AND 0.1"), 1);
  EXPECT_EQ(Eval("=NOT NOT 7"), 1);
  EXPECT_EQ(Eval("=TRUE+TRUE+FALSE"), 2);
  EXPECT_EQ(Polish("=1 OR 0 AND NOT 0"), "OR 1 AND 0 NOT 0");

  context.values[Var::S] = 1;
  EXPECT_EQ(Eval("=(S='M')*10+(S='F')", context), 10);
}

TEST(Formula, EveryFunctionAndItsArgumentCount) {
  const double pi = std::numbers::pi;
  const std::pair<const char*, double> cases[] = {
      {"SQRT(16)", 4},   {"LOG10(1000)", 3}, {"LN(E)", 1},        {"EXP(0)", 1},
      {"POW(2;10)", 1024}, {"ABS(-3)", 3},   {"MIN(2;-3)", -3},   {"MAX(2:-3)", 2},
      {"MOD(7;3)", 1},   {"ROUND(2.5)", 3},  {"ROUND(-2.5)", -3}, {"FLOOR(-1.5)", -2},
      {"CEIL(1.2)", 2},  {"SIN(PI/2)", 1},   {"COS(0)", 1},       {"TAN(PI/4)", 1},
      {"ASIN(1)", pi / 2}, {"ACOS(-1)", pi}, {"ATAN(1)", pi / 4}, {"SRAND(250)", 0.25},
      {"SNRAND(2)", -2}, {"NRAND", -1.5},    {"RAND()", 0.5},     {"E", std::numbers::e},
  };
  for (const auto& [text, expected] : cases)
    EXPECT_NEAR(Eval(std::string("=") + text), expected, 1e-12) << text;

  // One argument too few and one too many, for every function.
  const std::pair<const char*, int> arities[] = {
      {"SQRT", 1}, {"LOG10", 1}, {"LN", 1},    {"EXP", 1},   {"ABS", 1},    {"ROUND", 1},
      {"FLOOR", 1}, {"CEIL", 1}, {"SIN", 1},   {"COS", 1},   {"TAN", 1},    {"ASIN", 1},
      {"ACOS", 1},  {"ATAN", 1}, {"SRAND", 1}, {"SNRAND", 1}, {"POW", 2},   {"MIN", 2},
      {"MAX", 2},   {"MOD", 2},  {"KIN", 2},   {"FF", 1},    {"IMEAN", 1},  {"PPS3", 1},
      {"RAND", 0},  {"NRAND", 0}};
  for (const auto& [name, arity] : arities) {
    const auto call = [&](int count) {
      std::string text = std::string("=") + name + "(";
      for (int i = 0; i < count; ++i) text += i == 0 ? "1" : ";1";
      return Check(text + ")");
    };
    EXPECT_FALSE(call(arity).error) << name;
    if (arity > 0) {
      EXPECT_TRUE(call(arity - 1).error) << name;
    }
    ASSERT_TRUE(call(arity + 1).error) << name;
    EXPECT_NE(call(arity + 1).error->message.find("takes"), std::string::npos) << name;
  }
  EXPECT_EQ(ErrorOf("=SQRT()"), "\"SQRT\" takes 1 argument, not 0 at character 6");
  EXPECT_EQ(ErrorOf("=POW(2)"), "\"POW\" takes 2 arguments, not 1 at character 5");
  EXPECT_EQ(ErrorOf("=RAND(1)"), "\"RAND\" takes no arguments, not 1 at character 6");
  EXPECT_EQ(ErrorOf("=SQRT 4"), "\"SQRT\" needs its 1 argument in parentheses at character 7");
  EXPECT_EQ(ErrorOf("=N(2)"), "\"N\" takes no arguments at character 3");
}

TEST(Formula, VariablesComeFromTheContext) {
  FakeContext context;
  context.values = {{Var::N, 80}, {Var::K, 200}, {Var::A, 3}, {Var::PP, 2},
                    {StateVar(Var::IS1, 10), 7}, {StateVar(Var::GS1, 2), 0.5},
                    {Var::NMATES, 4}};
  EXPECT_EQ(Eval("=N/K+A*PP", context), 6.4);
  EXPECT_EQ(Eval("=IS10*GS2+NMATES", context), 7.5);
  EXPECT_EQ(Eval("=FF(2)+IIS3(1)+PPS10(4)", context), 70);
  EXPECT_EQ(Eval("=KIN(50;2)", context), 2.5);
  EXPECT_EQ(Eval("=NN(P+1)", context), 10);
  EXPECT_EQ(context.asked.back(), "NN(1)");

  EXPECT_EQ(Polish("=PARITY+PS10+IIS10(1)"), "+ + PARITY PS10 IIS10 1");
  EXPECT_EQ(ErrorOf("=IS11"), "unknown name \"IS11\" at character 2");
}

TEST(Formula, NamesInAnyCase) {
  EXPECT_EQ(Polish("=sqrt(n)+Pi*e-is1+gS10+nn(p)"), "+ + - + SQRT N * PI E IS1 GS10 NN P");
  EXPECT_EQ(Polish("=true and not False or Rand"), "OR AND TRUE NOT FALSE RAND");
  EXPECT_EQ(Eval("=pI"), std::numbers::pi);
  EXPECT_EQ(Polish("=S='f'"), "= S 'F'");
}

TEST(Formula, ErrorsSayWhatAndWhere) {
  EXPECT_EQ(ErrorOf(""), "the function is empty at character 1");
  EXPECT_EQ(ErrorOf("="), "the function is empty at character 2");
  EXPECT_EQ(ErrorOf("=N+"),
            "expected a number, a name or '(' but found the end of the function at character 4");
  EXPECT_EQ(ErrorOf("=FOO+1"), "unknown name \"FOO\" at character 2");
  EXPECT_EQ(ErrorOf("=MIN(1,2)"), "a comma cannot separate arguments, use ';' at character 7");
  EXPECT_EQ(ErrorOf("=(1+2"),
            "expected ')' to close the '(' at character 2 but found the end of the function at "
            "character 6");
  EXPECT_EQ(ErrorOf("=1+2)"), "')' without a matching '(' at character 5");
  EXPECT_EQ(ErrorOf("= 2  3"), "expected an operator but found '3' at character 6");
  EXPECT_EQ(ErrorOf("=1$2"), "unexpected character '$' at character 3");
  EXPECT_EQ(ErrorOf("=S='X'"), "only 'F' and 'M' may stand in quotes, not 'X' at character 4");
  EXPECT_EQ(ErrorOf("=S='F"), "the quote is not closed at character 4");
  EXPECT_EQ(ErrorOf("=AND 1"), "\"AND\" needs an operand before it at character 2");
  EXPECT_EQ(ErrorOf("=1*/2"), "expected a number, a name or '(' but found '/' at character 4");
  EXPECT_EQ(ErrorOf("=1<>2"), "expected a number, a name or '(' but found '>' at character 4");
  EXPECT_EQ(ErrorOf("=1e999"), "the number 1e999 is out of range at character 2");
  // Without "=" the positions count from the first character all the same.
  EXPECT_EQ(ErrorOf("N+"), "expected a number, a name or '(' but found the end of the function "
                           "at character 3");
}

TEST(Formula, NumbersAsTyped) {
  EXPECT_EQ(Eval("=.5+5.+1.25e2+2E-1"), 130.7);
  EXPECT_EQ(Polish("=.5*2E-1"), "* .5 2E-1");
  // E after a number without digits is the constant, not an exponent.
  EXPECT_EQ(ErrorOf("=2E"), "expected an operator but found 'E' at character 3");
}

TEST(Formula, NestingAndLengthAreLimited) {
  const auto nested = [](int depth) {
    return std::string("=").append(depth, '(').append("N").append(depth, ')');
  };
  EXPECT_EQ(Polish(nested(kMaxNesting)), "N");
  EXPECT_EQ(ErrorOf(nested(kMaxNesting + 1)),
            "the function is nested more than 100 levels deep at character 102");
  EXPECT_NE(ErrorOf(std::string(200000, '(')).find("nested more than 100 levels"),
            std::string::npos);
  EXPECT_NE(ErrorOf(std::string(200000, '-') + "1").find("nested more than 100 levels"),
            std::string::npos);
  EXPECT_NE(ErrorOf(std::string("=").append(200000, '2').append("^2")).find("out of range"), std::string::npos);

  std::string chain = "=1";
  for (int i = 1; i < kMaxHeight; ++i) chain += "+1";
  EXPECT_EQ(Eval(chain), kMaxHeight);
  EXPECT_EQ(ErrorOf(chain + "+1"),
            "the function is too long (more than 1000 operations in one chain) at character " +
                std::to_string(chain.size() + 1));

  std::string products = "=0";
  for (int i = 0; i < 300; ++i) products += "+(N*2-N)";
  FakeContext context;
  context.values[Var::N] = 3;
  EXPECT_EQ(Eval(products, context), 900);
}

TEST(Formula, CompiledFormIsFlatAndFolded) {
  const auto density = CompileText("=(50-((50-20)*((N/K)^2)))*(N/(5+N))");
  ASSERT_TRUE(density.program);
  EXPECT_EQ(density.program->code().size(), 7u);
  FakeContext context;
  for (double n : {0.0, 1.0, 37.0, 100.0, 250.0}) {
    context.values = {{Var::N, n}, {Var::K, 120}};
    const double expected = (50 - ((50 - 20) * std::pow(n / 120, 2))) * (n / (5 + n));
    EXPECT_DOUBLE_EQ(density.program->evaluate(context), expected) << n;
  }
  // Each variable is asked for once per evaluation.
  context.asked.clear();
  density.program->evaluate(context);
  EXPECT_EQ(context.asked.size(), 2u);

  const auto constant = CompileText("=(50-20)*2^2+MIN(1;PI)");
  EXPECT_EQ(constant.program->code().size(), 1u);
  EXPECT_EQ(constant.program->evaluate(context), 121);

  // A constant on the left of an operation without a folded form.
  FakeContext values;
  values.values[Var::N] = 4;
  EXPECT_EQ(Eval("=MOD(10;N)+MAX(2*3;N)+(3<N)+2^N+1/N", values), 2 + 6 + 1 + 16 + 0.25);

  EXPECT_TRUE(CompileText("=B*1.1").program->uses(Var::B));
  EXPECT_FALSE(density.program->uses(Var::B));
}

// Items of a batch: N is the item's number, K fixed, and the item is what
// FF() answers, so that a mix-up of items shows.
class ItemsContext : public FakeContext {
 public:
  void select(std::size_t item) override {
    item_ = item;
    values[Var::N] = static_cast<double>(item);
  }
  double indexed(IndexedVar, double argument) override { return 1000.0 * item_ + argument; }

 private:
  std::size_t item_ = 0;
};

TEST(Formula, BatchGivesWhatSingleEvaluationsGive) {
  const auto compiled =
      CompileText("=(50-((50-20)*((N/K)^2)))*(N/(5+N))+FF(2)+MOD(N;3)+(N>20)+SQRT(N)");
  ASSERT_TRUE(compiled.program);
  ItemsContext context;
  context.values[Var::K] = 30;
  // 40 items: two full groups of the batch and a part.
  std::vector<double> batch(40);
  compiled.program->evaluateBatch(context, batch.size(), batch.data());
  for (std::size_t item = 0; item < batch.size(); ++item) {
    context.select(item);
    EXPECT_EQ(batch[item], compiled.program->evaluate(context)) << item;
  }

  // Constants and random draws reach every item.
  ItemsContext draws;
  draws.uniforms = {0.25, 0.5, 0.75};
  std::vector<double> random(5);
  CompileText("=2+RAND").program->evaluateBatch(draws, random.size(), random.data());
  EXPECT_EQ(random, (std::vector<double>{2.25, 2.5, 2.75, 2.25, 2.5}));
  std::vector<double> constant(3);
  CompileText("=PI*2").program->evaluateBatch(draws, constant.size(), constant.data());
  EXPECT_EQ(constant, std::vector<double>(3, 2 * std::numbers::pi));
}

}  // namespace
}  // namespace tamsic::formula
