#include "functions/BreedingFunction.h"

namespace tamsic {

namespace {

const std::string& OrZero(const std::string& text) {
  static const std::string zero = "0";
  return text.empty() ? zero : text;
}

}  // namespace

std::string BreedingFunctionBody(const DensityParameters& parameters) {
  const std::string& p0 = OrZero(parameters.p0);
  return "(" + p0 + "-((" + p0 + "-" + OrZero(parameters.pk) + ")*((N/K)^" +
         OrZero(parameters.steepness) + ")))*(N/(" + OrZero(parameters.allee) + "+N))";
}

std::vector<BreedingFunctionCell> BreedingFunctionCells(
    const std::vector<DensityParameters>& populations) {
  std::vector<BreedingFunctionCell> cells;
  for (std::size_t i = 0; i < populations.size(); ++i)
    if (populations[i].dependent)
      cells.push_back({static_cast<int>(i) + 1,
                       std::string("=").append(BreedingFunctionBody(populations[i]))});
  return cells;
}

std::optional<std::string> ViewBreedingFunction(const DensityParameters& parameters,
                                                Messages& messages) {
  int refusal = 0;
  if (!parameters.dependent)
    refusal = msg::kCheckDensityBox;
  else if (parameters.p0.empty() || parameters.pk.empty() || parameters.allee.empty() ||
           parameters.steepness.empty())
    refusal = msg::kFillDensityValues;
  if (refusal != 0) {
    messages.show(messages.text(refusal), msg::kWarning, MsgIcon::Exclamation);
    return std::nullopt;
  }
  return BreedingFunctionBody(parameters);
}

}  // namespace tamsic
