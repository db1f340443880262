#include "sim/Options.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <string>

#include "model/TextSplit.h"

namespace tamsic::sim {

namespace {

std::string Upper(std::string_view text) {
  std::string upper;
  for (char c : text) upper += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return upper;
}

template <class T>
std::optional<T> NumberAfter(std::string_view code, std::size_t prefix) {
  std::string_view rest = Trim(code.substr(prefix));
  if (!rest.empty() && rest.front() == '=') rest = Trim(rest.substr(1));
  T value{};
  const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
  if (error != std::errc() || end != rest.data() + rest.size()) return std::nullopt;
  return value;
}

// A code letter, alone or followed by its value ("T80", "Y 5"), but not a word that only begins with it.
bool IsCode(const std::string& upper, char letter) {
  return !upper.empty() && upper[0] == letter &&
         (upper.size() == 1 || !std::isalpha(static_cast<unsigned char>(upper[1])));
}

void Apply(std::string_view code, Options& options) {
  const std::string upper = Upper(code);
  if (upper.starts_with("SEED")) {
    options.seed = NumberAfter<std::uint64_t>(code, 4);
  } else if (upper.starts_with("THREADS")) {
    options.threads = NumberAfter<int>(code, 7).value_or(0);
  } else if (upper == "ESTIMATE") {
    options.estimate = true;
  } else if (upper == "+" || upper == "META") {
    options.runMode = upper;
  } else if (upper == "X") {
    options.excludeLastPopulation = true;
  } else if (upper == "M") {
    options.noDispersalIntoFull = true;
  } else if (upper == "B") {
    options.declineIsExtinction = true;
  } else if (upper == "A") {
    options.livingFile = true;
  } else if (upper == "N") {
    options.createdFile = true;
  } else if (IsCode(upper, 'T')) {
    options.translocate = true;
    options.translocationSurvival = std::clamp(NumberAfter<double>(code, 1).value_or(100.0), 0.0, 100.0);
  } else if (IsCode(upper, 'Y')) {
    options.censusFile = true;
    options.censusIterations = std::max(0, NumberAfter<int>(code, 1).value_or(0));
  } else if (IsCode(upper, 'W')) {
    options.reserveIndividuals = std::max(0LL, NumberAfter<long long>(code, 1).value_or(0));
  }
}

}  // namespace

Options ParseOptions(std::string_view text) {
  Options options;
  while (!text.empty()) {
    const std::size_t cut = std::min(text.find(';'), text.size());
    const std::string_view code = Trim(text.substr(0, cut));
    text.remove_prefix(std::min(cut + 1, text.size()));
    // Free codes may also be separated by blanks.
    std::string_view rest = code;
    while (!rest.empty()) {
      const std::size_t blank = std::min(rest.find(' '), rest.size());
      std::string_view word = rest.substr(0, blank);
      rest = Trim(rest.substr(blank));
      // "SEED 42": the number may follow after a blank.
      if ((Upper(word) == "SEED" || Upper(word) == "THREADS") && !rest.empty()) {
        const std::size_t next = std::min(rest.find(' '), rest.size());
        Apply(std::string(word) + std::string(rest.substr(0, next)), options);
        rest = Trim(rest.substr(next));
        continue;
      }
      Apply(word, options);
    }
  }
  return options;
}

}  // namespace tamsic::sim
