#pragma once
// The one road by which the core asks the user something or tells them of a
// failure. The GUI shows a real message box, the command line prints to
// stderr, tests record every request; the core never includes a window toolkit.
#include <string>

namespace tamsic {

enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MsgAnswer { Ok, Cancel, Yes, No };

struct MessageBoxRequest {
  std::string text;
  std::string caption;
  MsgIcon icon = MsgIcon::None;
  MsgButtons buttons = MsgButtons::Ok;
};

class IMessageBox {
 public:
  virtual ~IMessageBox() = default;
  virtual MsgAnswer show(const MessageBoxRequest& request) = 0;
};

// Looks up a message by its number relative to the language (9110, not 19110).
// A number missing from the table yields an empty text.
class IStringTable {
 public:
  virtual ~IStringTable() = default;
  virtual std::string text(int number) const = 0;
};

// What core code holds: the box to show messages in and the table their texts
// come from, passed in by whoever owns the window or the command.
class Messages {
 public:
  Messages(IMessageBox& box, const IStringTable& strings) : box_(box), strings_(strings) {}

  std::string text(int number) const { return strings_.text(number); }
  const IStringTable& strings() const { return strings_; }
  MsgAnswer show(const MessageBoxRequest& request) { return box_.show(request); }
  MsgAnswer show(std::string text, int captionNumber, MsgIcon icon,
                 MsgButtons buttons = MsgButtons::Ok) {
    return box_.show({std::move(text), strings_.text(captionNumber), icon, buttons});
  }

 private:
  IMessageBox& box_;
  const IStringTable& strings_;
};

// Message numbers the core uses, so that a typo is a compile error.
namespace msg {
inline constexpr int kReorderCaution = 8007;
inline constexpr int kWarning = 9103;
inline constexpr int kUnableToRunSimulation = 9110;
inline constexpr int kError = 9111;
inline constexpr int kConfirmation = 9115;
inline constexpr int kSaveBeforeQuitting = 9118;
inline constexpr int kFillDensityValues = 9116;
inline constexpr int kCheckDensityBox = 9117;
inline constexpr int kConfirmDeleteScenario = 9121;
inline constexpr int kInvalidInput = 9132;
inline constexpr int kDispersalAges = 9135;
inline constexpr int kProjectNameMismatch = 9136;
inline constexpr int kChangeProjectName = 9137;
inline constexpr int kProjectDoesNotExist = 9139;
inline constexpr int kProblemWithData = 9143;
inline constexpr int kModifiedManually = 9144;
inline constexpr int kUnableToFindSection = 9145;
// What is wrong with a value and where it is; the engine's English is built into EnglishInputWords.
inline constexpr int kMustBeNumber = 9152;
inline constexpr int kMustBeNumberOrFunction = 9153;
inline constexpr int kMustBeWhole = 9154;
inline constexpr int kMustBeAtLeast = 9155;
inline constexpr int kMustBeAtMost = 9156;
inline constexpr int kMustBeSwitch = 9157;
inline constexpr int kMustBePlace = 9158;
inline constexpr int kRow = 9159;
inline constexpr int kColumn = 9160;
inline constexpr int kPercentOrProportion = 9161;
inline constexpr int kWholeAgeOfReproduction = 9162;
inline constexpr int kWholeMaximumAge = 9163;
inline constexpr int kWholeBroods = 9164;
inline constexpr int kWholeProgeny = 9165;
inline constexpr int kCaution = 9166;
inline constexpr int kStableAgesWithFunctions = 9167;
inline constexpr int kBreedToKWithFunctions = 9168;
inline constexpr int kNameCharacters = 9169;
inline constexpr int kNameNotUnique = 9170;
inline constexpr int kCannotDeleteST = 9171;
// The rate matrix's file, and the state variable presets: pieces joined with a
// file name, a reason or numbers.
inline constexpr int kRateMatrixNotWritten = 9172;
inline constexpr int kRateMatrixNotRead = 9173;
inline constexpr int kRateFileHasLines = 9174;
inline constexpr int kRateFileLinesButMatrix = 9175;
inline constexpr int kRateFileLinesNeeded = 9176;
inline constexpr int kRateFileLine = 9177;
inline constexpr int kRateFileLineHas = 9178;
inline constexpr int kRateFileValuesButMatrix = 9179;
inline constexpr int kRateFilePopulations = 9180;
inline constexpr int kPresetThese = 9181;
inline constexpr int kPresetWouldMake = 9182;
inline constexpr int kPresetAtMost = 9183;
inline constexpr int kPresetArePossible = 9184;
// Closing one project, and the message after a paste into a grid.
inline constexpr int kSaveBeforeClosing = 9185;
inline constexpr int kPasteRefused = 9186;
inline constexpr int kPasteRemarks = 9187;
inline constexpr int kPasteUnlisted = 9188;
}  // namespace msg

}  // namespace tamsic
