#include "EstimateStep.h"

#include <iostream>

#include "engine/EstimateText.h"
#include "engine/RunEstimate.h"
#include "files/TextCodec.h"
#include "model/MemoryWords.h"

namespace tamsic {

namespace {

void PrintScenarios(const RunEstimate& estimate) {
  for (const ScenarioEstimate& s : estimate.scenarios)
    std::cout << "  " << Cp1252ToUtf8(s.name) << ": " << DescribeScenario(s) << ", " << s.iterations
              << " iterations" << (s.piloted > 0 ? ", " + std::to_string(s.piloted) + " in the pilot" : "") << "\n";
}

}  // namespace

std::optional<int> TellEstimate(Engine& engine, const basSimulation::RunRequest& request, EstimateUse use) {
  const EstimateResult result = AskEstimate(engine, request);
  if (!result.estimate) {
    const std::string cause = Cp1252ToUtf8(result.failure.starts_with("Error: ") ? result.failure.substr(7)
                                                                                 : result.failure);
    // A fault of a scenario is the run's to report, when it comes to that
    // scenario: those before it still run and keep their files.
    if (use == EstimateUse::BeforeRun && !cause.starts_with("the estimate was cancelled")) {
      std::cerr << "Warning: no estimate of the run: " << cause << "\n";
      return std::nullopt;
    }
    std::cerr << "Error: " << cause << "\n";
    return 1;
  }
  const RunEstimate& estimate = *result.estimate;
  if (use == EstimateUse::OnlyReply) std::cout << Cp1252ToUtf8(result.reply) << "\n";
  const bool only = use == EstimateUse::Only;
  if (use != EstimateUse::OnlyReply) {
    std::ostream& out = only ? std::cout : std::cerr;
    out << "Estimate: " << DescribeEstimate(estimate) << " with " << estimate.threads
        << (estimate.threads == 1 ? " thread" : " threads") << "; " << MemoryAmount(estimate.availableBytes)
        << " available\n";
  }
  if (only) PrintScenarios(estimate);
  const std::vector<std::string> refusals = Refusals(estimate);
  for (const std::string& line : refusals) std::cerr << "Error: " << Cp1252ToUtf8(line) << "\n";
  if (!refusals.empty()) return 1;
  if (use == EstimateUse::BeforeRun) return std::nullopt;
  return 0;
}

}  // namespace tamsic
