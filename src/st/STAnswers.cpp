#include "st/STAnswers.h"

namespace tamsic {

namespace {

using namespace sttext;

// The table's text, or the English when the table lacks it: a message must never show up empty.
std::string In(const IStringTable& strings, const Text& text) {
  std::string translated = strings.text(text.number);
  return translated.empty() ? std::string(text.english) : translated;
}

bool Starts(std::string_view answer, const Text& text) { return answer.starts_with(text.english); }

std::string_view After(std::string_view answer, const Text& text) { return answer.substr(text.english.size()); }

}  // namespace

std::string LocalizedSTAnswer(std::string_view answer, const IStringTable& strings) {
  for (const Text& text : kAll)
    if (answer == text.english) return In(strings, text);
  if (Starts(answer, kNoFunction) && answer.ends_with('.'))
    return In(strings, kNoFunction) + std::string(After(answer, kNoFunction));
  if (Starts(answer, kFunctionError)) {
    const std::string_view rest = After(answer, kFunctionError);
    const auto reason = rest.find(kFunctionReason.english);
    if (reason != std::string_view::npos)
      return In(strings, kFunctionError) + std::string(rest.substr(0, reason)) + In(strings, kFunctionReason) +
             std::string(rest.substr(reason + kFunctionReason.english.size()));
  }
  for (const Text& prefix : {kNoBaseline, kBaselineIsST, kNotAVariable})
    if (Starts(answer, prefix)) return In(strings, prefix) + std::string(After(answer, prefix));
  // A refused value of a scheme: the variable's name, ": " and the check's answer.
  const auto colon = answer.find(": ");
  if (colon != std::string_view::npos && answer.substr(0, colon).find(' ') == std::string_view::npos)
    return std::string(answer.substr(0, colon + 2)) + LocalizedSTAnswer(answer.substr(colon + 2), strings);
  return std::string(answer);
}

}  // namespace tamsic
