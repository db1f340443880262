#pragma once
// The help topics the program opens, by the stable ids of the manual
// (HelpManual::Target): each input page, each tab of the project window and
// each window or dialog that has a topic of its own.
#include <string_view>
#include <vector>

namespace tamsic::help {

inline constexpr char kContents[] = "contents";
inline constexpr char kUsingHelp[] = "help";
inline constexpr char kRunDialog[] = "run-dialog";
inline constexpr char kSpecialOptions[] = "special-options";
inline constexpr char kFunctionEditor[] = "function-editor";
inline constexpr char kFunctionPreview[] = "function-preview";
inline constexpr char kSensitivityTesting[] = "sensitivity-testing";

// The topic of an input page, counted from 0 in the order of the page links.
std::string_view InputPageTopic(int page);
// The topic of a tab of the project window, counted from 0; the first tab's
// topic is the input pages' common one (each page has its own as well).
std::string_view ProjectTabTopic(int tab);
// The topic of a window or dialog by its object name ("frmSimRun"); empty for one without.
std::string_view WindowTopic(std::string_view windowName);

// Every topic id above, which the manual must have.
std::vector<std::string_view> ProgramTopics();

}  // namespace tamsic::help
