#include "formula/Tokenizer.h"

#include <cctype>
#include <charconv>

#include "formula/FormulaError.h"

namespace tamsic::formula {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

class Tokenizer {
 public:
  Tokenizer(std::string_view text, std::size_t offset) : text_(text), at_(offset) {}

  std::vector<Token> run() {
    std::vector<Token> tokens;
    for (;;) {
      skipBlanks();
      if (at_ >= text_.size()) {
        tokens.push_back({TokenKind::End, "", 0.0, position(at_)});
        return tokens;
      }
      tokens.push_back(next());
    }
  }

 private:
  int position(std::size_t index) const { return static_cast<int>(index) + 1; }
  char peek(std::size_t ahead = 0) const {
    return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0';
  }

  void skipBlanks() {
    while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t' ||
                                  text_[at_] == '\r' || text_[at_] == '\n'))
      ++at_;
  }

  Token next() {
    const char c = peek();
    if (IsDigit(c) || (c == '.' && IsDigit(peek(1)))) return number();
    if (IsLetter(c)) return name();
    if (c == '\'') return quoted();
    return symbol();
  }

  Token number() {
    const std::size_t start = at_;
    while (IsDigit(peek())) ++at_;
    if (peek() == '.') {
      ++at_;
      while (IsDigit(peek())) ++at_;
    }
    // An exponent only when digits follow, so that "2*E" still reads E.
    if ((peek() == 'e' || peek() == 'E') &&
        (IsDigit(peek(1)) || ((peek(1) == '+' || peek(1) == '-') && IsDigit(peek(2))))) {
      at_ += 2;
      while (IsDigit(peek())) ++at_;
    }
    Token token{TokenKind::Number, std::string(text_.substr(start, at_ - start)), 0.0,
                position(start)};
    const char* first = token.text.data();
    const char* last = first + token.text.size();
    const auto [end, error] = std::from_chars(first, last, token.value);
    if (error != std::errc() || end != last)
      throw FormulaFault({"the number " + token.text + " is out of range", token.position});
    return token;
  }

  Token name() {
    const std::size_t start = at_;
    while (IsLetter(peek()) || IsDigit(peek()) || peek() == '_') ++at_;
    return {TokenKind::Name, std::string(text_.substr(start, at_ - start)), 0.0, position(start)};
  }

  // 'F' and 'M' stand for the sexes, 0 and 1, so that S='F' reads naturally.
  Token quoted() {
    const std::size_t start = at_;
    const std::size_t close = text_.find('\'', start + 1);
    if (close == std::string_view::npos)
      throw FormulaFault({"the quote is not closed", position(start)});
    const std::string_view inside = text_.substr(start + 1, close - start - 1);
    at_ = close + 1;
    Token token{TokenKind::Quoted, std::string(text_.substr(start, at_ - start)), 0.0,
                position(start)};
    if (inside == "F" || inside == "f") {
      token.value = 0.0;
      token.text = "'F'";
    } else if (inside == "M" || inside == "m") {
      token.value = 1.0;
      token.text = "'M'";
    } else {
      throw FormulaFault({"only 'F' and 'M' may stand in quotes, not " + token.text,
                          token.position});
    }
    return token;
  }

  Token symbol() {
    const std::size_t start = at_;
    const char c = peek();
    const char after = peek(1);
    auto make = [&](TokenKind kind, std::size_t length) {
      at_ += length;
      return Token{kind, std::string(text_.substr(start, length)), 0.0, position(start)};
    };
    switch (c) {
      case '+': return make(TokenKind::Plus, 1);
      case '-': return make(TokenKind::Minus, 1);
      case '*': return make(TokenKind::Star, 1);
      case '/': return make(TokenKind::Slash, 1);
      case '^': return make(TokenKind::Caret, 1);
      case '(': return make(TokenKind::LeftParen, 1);
      case ')': return make(TokenKind::RightParen, 1);
      // Project files turn ";" in a cell into ":", so both separate arguments.
      case ';':
      case ':': return make(TokenKind::Semicolon, 1);
      case '=': return make(TokenKind::Equal, 1);
      case '<': return after == '=' ? make(TokenKind::LessEqual, 2) : make(TokenKind::Less, 1);
      case '>':
        return after == '=' ? make(TokenKind::GreaterEqual, 2) : make(TokenKind::Greater, 1);
      case '!':
        if (after == '=') return make(TokenKind::NotEqual, 2);
        break;
      case ',':
        throw FormulaFault({"a comma cannot separate arguments, use ';'", position(start)});
      default:
        break;
    }
    throw FormulaFault({"unexpected character '" + std::string(1, c) + "'", position(start)});
  }

  std::string_view text_;
  std::size_t at_;
};

}  // namespace

std::vector<Token> Tokenize(std::string_view text, std::size_t offset) {
  return Tokenizer(text, offset).run();
}

}  // namespace tamsic::formula
