#include "app/HelpTopics.h"

#include <array>
#include <utility>

namespace tamsic::help {

namespace {

constexpr std::array<std::string_view, 14> kPages = {
    "page-scenario-settings",  "page-species-description", "page-labels-state-variables", "page-dispersal",
    "page-reproductive-system", "page-reproductive-rates", "page-mortality",              "page-catastrophes",
    "page-mate-monopolization", "page-initial-population", "page-carrying-capacity",      "page-harvest",
    "page-supplementation",     "page-genetic-management"};

constexpr std::array<std::string_view, 4> kTabs = {"input-pages", "project-settings", "text-output",
                                                   "graphs-and-tables"};

constexpr std::pair<std::string_view, std::string_view> kWindows[] = {
    {"frmSimRun", kRunDialog},
    {"frmRunProgress", "run-progress"},
    {"frmFlags", kSpecialOptions},
    {"frmNewProject", "new-project"},
    {"frmWelcome", "welcome"},
    {"frmSettings", "program-settings"},
    {"frmAbout", kContents},
    {"frmNewScenario", "add-scenarios"},
    {"frmScenarios", "order-scenarios"},
    {"frmSpecify", "table-columns"},
    {"frmEquation", kFunctionEditor},
    {"frmEquationPreview", kFunctionPreview},
    {"frmSTSetup", kSensitivityTesting},
    {"frmSTDesign", kSensitivityTesting},
    {"frmHelp", kUsingHelp},
};

}  // namespace

std::string_view InputPageTopic(int page) {
  return page >= 0 && page < static_cast<int>(kPages.size()) ? kPages[static_cast<std::size_t>(page)] : kTabs[0];
}

std::string_view ProjectTabTopic(int tab) {
  return tab >= 0 && tab < static_cast<int>(kTabs.size()) ? kTabs[static_cast<std::size_t>(tab)] : kTabs[0];
}

std::string_view WindowTopic(std::string_view windowName) {
  for (const auto& [name, topic] : kWindows)
    if (name == windowName) return topic;
  return {};
}

std::vector<std::string_view> ProgramTopics() {
  std::vector<std::string_view> topics{kContents};
  topics.insert(topics.end(), kPages.begin(), kPages.end());
  topics.insert(topics.end(), kTabs.begin(), kTabs.end());
  for (const auto& window : kWindows) topics.push_back(window.second);
  return topics;
}

}  // namespace tamsic::help
