#pragma once
// Splits the text of a function into tokens, each with its position.
#include <string>
#include <string_view>
#include <vector>

namespace tamsic::formula {

enum class TokenKind {
  Number, Name, Quoted, Plus, Minus, Star, Slash, Caret, LeftParen, RightParen,
  Semicolon, Less, LessEqual, Greater, GreaterEqual, Equal, NotEqual, End,
};

struct Token {
  TokenKind kind;
  std::string text;  // as typed
  double value = 0.0;  // of a number or a quoted 'F' / 'M'
  int position = 0;    // 1-based
};

// The tokens of `text` starting at `offset` (0-based), ending with an End
// token. Positions count from the start of `text`. Throws FormulaFault.
std::vector<Token> Tokenize(std::string_view text, std::size_t offset);

}  // namespace tamsic::formula
