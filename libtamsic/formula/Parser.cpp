#include "formula/Parser.h"

#include <algorithm>
#include <vector>

#include "formula/Names.h"
#include "formula/Tokenizer.h"

namespace tamsic::formula {

namespace {

std::unique_ptr<Node> MakeNode(Op op, std::string label, int position) {
  auto node = std::make_unique<Node>();
  node->op = op;
  node->label = std::move(label);
  node->position = position;
  return node;
}

std::string Describe(const Token& token) {
  return token.kind == TokenKind::End ? "the end of the function" : "'" + token.text + "'";
}

class Parser {
 public:
  explicit Parser(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

  std::unique_ptr<Node> run() {
    if (peek().kind == TokenKind::End) fail("the function is empty", peek().position);
    auto tree = parseOr();
    if (peek().kind != TokenKind::End) {
      if (peek().kind == TokenKind::RightParen) fail("')' without a matching '('", peek().position);
      fail("expected an operator but found " + Describe(peek()), peek().position);
    }
    return tree;
  }

 private:
  // Counts nested sub-expressions so that deep input ends in an error, not
  // in an overflow of the stack.
  class Nesting {
   public:
    Nesting(Parser& parser, int position) : parser_(parser) {
      if (++parser_.nesting_ > kMaxNesting)
        parser_.fail("the function is nested more than " + std::to_string(kMaxNesting) +
                         " levels deep",
                     position);
    }
    ~Nesting() { --parser_.nesting_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

   private:
    Parser& parser_;
  };

  [[noreturn]] void fail(std::string message, int position) const {
    throw FormulaFault({std::move(message), position});
  }

  const Token& peek() const { return tokens_[at_]; }
  Token take() { return tokens_[at_ == tokens_.size() - 1 ? at_ : at_++]; }

  bool atKeyword(std::string_view keyword) const {
    if (peek().kind != TokenKind::Name) return false;
    const auto info = LookUpName(peek().text);
    return info && info->kind == NameKind::Keyword && info->canonical == keyword;
  }

  std::unique_ptr<Node> withChildren(std::unique_ptr<Node> node,
                                     std::vector<std::unique_ptr<Node>> children) {
    for (auto& child : children) node->height = std::max(node->height, child->height + 1);
    if (node->height > kMaxHeight)
      fail("the function is too long (more than " + std::to_string(kMaxHeight) +
               " operations in one chain)",
           node->position);
    node->children = std::move(children);
    return node;
  }

  std::unique_ptr<Node> binary(Op op, const Token& token, std::unique_ptr<Node> left,
                               std::unique_ptr<Node> right) {
    std::vector<std::unique_ptr<Node>> children;
    children.push_back(std::move(left));
    children.push_back(std::move(right));
    return withChildren(MakeNode(op, token.text, token.position), std::move(children));
  }

  std::unique_ptr<Node> unary(Op op, std::string label, int position,
                              std::unique_ptr<Node> operand) {
    std::vector<std::unique_ptr<Node>> children;
    children.push_back(std::move(operand));
    return withChildren(MakeNode(op, std::move(label), position), std::move(children));
  }

  std::unique_ptr<Node> parseOr() {
    auto left = parseAnd();
    while (atKeyword("OR")) {
      Token token = take();
      token.text = "OR";
      left = binary(Op::Or, token, std::move(left), parseAnd());
    }
    return left;
  }

  std::unique_ptr<Node> parseAnd() {
    auto left = parseNot();
    while (atKeyword("AND")) {
      Token token = take();
      token.text = "AND";
      left = binary(Op::And, token, std::move(left), parseNot());
    }
    return left;
  }

  std::unique_ptr<Node> parseNot() {
    if (!atKeyword("NOT")) return parseComparison();
    const Token token = take();
    Nesting nesting(*this, token.position);
    return unary(Op::Not, "NOT", token.position, parseNot());
  }

  static std::optional<Op> ComparisonOp(TokenKind kind) {
    switch (kind) {
      case TokenKind::Less: return Op::Lt;
      case TokenKind::LessEqual: return Op::Le;
      case TokenKind::Greater: return Op::Gt;
      case TokenKind::GreaterEqual: return Op::Ge;
      case TokenKind::Equal: return Op::Eq;
      case TokenKind::NotEqual: return Op::Ne;
      default: return std::nullopt;
    }
  }

  std::unique_ptr<Node> parseComparison() {
    auto left = parseAdditive();
    while (const auto op = ComparisonOp(peek().kind)) {
      const Token token = take();
      left = binary(*op, token, std::move(left), parseAdditive());
    }
    return left;
  }

  std::unique_ptr<Node> parseAdditive() {
    auto left = parseMultiplicative();
    while (peek().kind == TokenKind::Plus || peek().kind == TokenKind::Minus) {
      const Token token = take();
      const Op op = token.kind == TokenKind::Plus ? Op::Add : Op::Sub;
      left = binary(op, token, std::move(left), parseMultiplicative());
    }
    return left;
  }

  std::unique_ptr<Node> parseMultiplicative() {
    auto left = parseUnary();
    while (peek().kind == TokenKind::Star || peek().kind == TokenKind::Slash) {
      const Token token = take();
      const Op op = token.kind == TokenKind::Star ? Op::Mul : Op::Div;
      left = binary(op, token, std::move(left), parseUnary());
    }
    return left;
  }

  // A sign binds less tightly than "^": -2^2 is -(2^2).
  std::unique_ptr<Node> parseUnary() {
    if (peek().kind != TokenKind::Minus && peek().kind != TokenKind::Plus) return parsePower();
    const Token token = take();
    Nesting nesting(*this, token.position);
    auto operand = parseUnary();
    if (token.kind == TokenKind::Plus) return operand;
    return unary(Op::Neg, "NEG", token.position, std::move(operand));
  }

  std::unique_ptr<Node> parsePower() {
    auto base = parsePrimary();
    if (peek().kind != TokenKind::Caret) return base;
    const Token token = take();
    Nesting nesting(*this, token.position);
    return binary(Op::Pow, token, std::move(base), parseUnary());
  }

  std::unique_ptr<Node> parsePrimary() {
    const Token token = take();
    switch (token.kind) {
      case TokenKind::Number:
      case TokenKind::Quoted: {
        auto node = MakeNode(Op::Const, token.text, token.position);
        node->value = token.value;
        return node;
      }
      case TokenKind::Name:
        return parseName(token);
      case TokenKind::LeftParen: {
        Nesting nesting(*this, token.position);
        auto inner = parseOr();
        expectClose(token);
        return inner;
      }
      default:
        fail("expected a number, a name or '(' but found " + Describe(token), token.position);
    }
  }

  void expectClose(const Token& open) {
    if (peek().kind == TokenKind::RightParen) {
      take();
      return;
    }
    fail("expected ')' to close the '(' at character " + std::to_string(open.position) +
             " but found " + Describe(peek()),
         peek().position);
  }

  std::unique_ptr<Node> parseName(const Token& token) {
    const auto info = LookUpName(token.text);
    if (!info) fail("unknown name \"" + token.text + "\"", token.position);
    const std::string name(info->canonical);
    switch (info->kind) {
      case NameKind::Keyword:
        fail("\"" + name + "\" needs an operand before it", token.position);
      case NameKind::Constant:
      case NameKind::Variable: {
        if (peek().kind == TokenKind::LeftParen)
          fail("\"" + name + "\" takes no arguments", peek().position);
        auto node = MakeNode(info->op, name, token.position);
        node->value = info->value;
        node->index = info->index;
        return node;
      }
      case NameKind::Indexed:
      case NameKind::Function:
        break;
    }
    auto node = MakeNode(info->op, name, token.position);
    node->index = info->index;
    if (peek().kind != TokenKind::LeftParen) {
      if (info->maxArgs == 0) return node;
      fail("\"" + name + "\" needs its " + ArgumentCount(info->minArgs) + " in parentheses",
           peek().position);
    }
    return withChildren(std::move(node), parseArguments(*info, name));
  }

  static std::string ArgumentCount(int count) {
    if (count == 0) return "no arguments";
    return count == 1 ? "1 argument" : std::to_string(count) + " arguments";
  }

  std::vector<std::unique_ptr<Node>> parseArguments(const NameInfo& info,
                                                    const std::string& name) {
    const Token open = take();
    Nesting nesting(*this, open.position);
    std::vector<std::unique_ptr<Node>> arguments;
    if (peek().kind != TokenKind::RightParen) {
      arguments.push_back(parseOr());
      while (peek().kind == TokenKind::Semicolon) {
        take();
        arguments.push_back(parseOr());
      }
    }
    const int count = static_cast<int>(arguments.size());
    if (count < info.minArgs || count > info.maxArgs)
      fail("\"" + name + "\" takes " + ArgumentCount(info.minArgs) + ", not " +
               std::to_string(count),
           open.position);
    expectClose(open);
    return arguments;
  }

  std::vector<Token> tokens_;
  std::size_t at_ = 0;
  int nesting_ = 0;
};

}  // namespace

ParseResult Parse(std::string_view text) {
  const std::size_t offset = !text.empty() && text.front() == '=' ? 1 : 0;
  try {
    return {Parser(Tokenize(text, offset)).run(), std::nullopt};
  } catch (const FormulaFault& fault) {
    return {nullptr, fault.error()};
  }
}

}  // namespace tamsic::formula
