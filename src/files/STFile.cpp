#include "files/STFile.h"

#include <cfenv>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "model/Errors.h"
#include "model/TextNumbers.h"

namespace tamsic {

namespace {

constexpr std::string_view kSection = "ST Data";

// A failure inside the section that ends reading it, with what was being read.
class SchemeReadError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

std::int16_t ToInt16(double value, const std::string& key) {
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max())
    throw SchemeReadError("the value of " + key + " is out of range");
  return static_cast<std::int16_t>(value);
}

// The integer part of the text's leading number; no number at all reads as 0.
std::int16_t IntegerPart(const std::string& text, const std::string& key) {
  return ToInt16(std::trunc(LeadingNumber(text)), key);
}

// A whole number by rounding, halves to the even neighbour; the text must be a number.
std::int16_t Rounded(const std::string& text, const std::string& key) {
  const auto value = ExactNumber(text);
  if (!value) throw SchemeReadError("the value of " + key + " is not a number: \"" + text + "\"");
  return ToInt16(std::nearbyint(*value), key);
}

std::vector<std::string> SplitAtComma(const std::string& text) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t at = text.find(','); at != std::string::npos; at = text.find(',', start)) {
    parts.push_back(text.substr(start, at - start));
    start = at + 1;
  }
  parts.push_back(text.substr(start));
  return parts;
}

void ReadItem(STItem& item, int i, const std::string& varCount, clsSaveFile& file, bool renumber) {
  const std::string n = std::to_string(i);
  auto read = [&](const std::string& key) { return file.GetEntryCache(key, kSection); };
  item.AnalysisIndex = Rounded(read("ST.ItemAnalysisIndex_" + n), "ST.ItemAnalysisIndex_" + n);
  item.Label = read("ST.ItemLabel_" + n);
  item.ScenarioIndex = IntegerPart(read("ST.ItemScenarioIndex_" + n), "ST.ItemScenarioIndex_" + n);
  const int count = IntegerPart(varCount, "ST.ItemsVarsList");
  if (count < 0) throw SchemeReadError("ST.ItemsVarsList gives a negative count for item " + n);
  item.Vars.assign(static_cast<std::size_t>(count), {});
  item.Vals.assign(static_cast<std::size_t>(count), {});
  for (int j = 0; j < count; ++j) {
    const std::string suffix = n + "_" + std::to_string(j);
    const std::string var = read("ST.ItemVar_" + suffix);
    item.Vars[j] = renumber ? RenumberOldMortalityVar(var) : var;
    item.Vals[j] = read("ST.ItemVal_" + suffix);
  }
}

void ReadItems(STScheme& scheme, clsSaveFile& file, double fileVersion, Messages& messages) {
  scheme.NumItems = IntegerPart(file.GetEntryCache("ST.NumItems", kSection), "ST.NumItems");
  if (scheme.NumItems < 1) return;
  scheme.Items.assign(static_cast<std::size_t>(scheme.NumItems) + 1, {});
  const std::vector<std::string> counts = SplitAtComma(file.GetEntryCache("ST.ItemsVarsList", kSection));
  if (counts.size() != static_cast<std::size_t>(scheme.NumItems)) {
    messages.show({"Error.", "", MsgIcon::None, MsgButtons::Ok});
    return;
  }
  const bool renumber = fileVersion < 9.6;
  for (int i = 0; i < scheme.NumItems; ++i) ReadItem(scheme.Items[i], i, counts[i], file, renumber);
}

}  // namespace

void WriteSTScheme(const STScheme& scheme, clsSaveFile& file) {
  file.StartSection(kSection, true);
  file.SaveEntry("ST.NumItems", std::to_string(scheme.NumItems), "Number of items in the ST Scheme");
  if (scheme.NumItems <= 0) return;
  std::string counts;
  for (int i = 0; i < scheme.NumItems; ++i) {
    if (i > 0) counts += ',';
    counts += std::to_string(scheme.Items.at(i).Vars.size());
  }
  file.SaveEntry("ST.ItemsVarsList", counts, "List of how many vars each Item contains.");
  for (int i = 0; i < scheme.NumItems; ++i) {
    const STItem& item = scheme.Items.at(i);
    const std::string n = std::to_string(i);
    file.SaveEntry("ST.ItemAnalysisIndex_" + n, std::to_string(item.AnalysisIndex), "Index for the ST Item " + n);
    file.SaveEntry("ST.ItemLabel_" + n, item.Label, "Label for the ST Item " + n);
    file.SaveEntry("ST.ItemScenarioIndex_" + n, std::to_string(item.ScenarioIndex),
                   "Scenario Index for the ST Item " + n);
    for (std::size_t j = 0; j < item.Vars.size(); ++j) {
      const std::string suffix = n + "_" + std::to_string(j);
      file.SaveEntry("ST.ItemVar_" + suffix, item.Vars[j],
                     "Variable " + std::to_string(j) + " for the ST Item " + n);
      file.SaveEntry("ST.ItemVal_" + suffix, j < item.Vals.size() ? item.Vals[j] : std::string(),
                     "Value " + std::to_string(j) + " for the ST Item " + n);
    }
  }
}

void ReadSTScheme(STScheme& scheme, clsSaveFile& file, double fileVersion, Messages& messages) {
  scheme = STScheme();
  try {
    ReadItems(scheme, file, fileVersion, messages);
  } catch (const SchemeReadError& error) {
    messages.show(std::string("The sensitivity-test scheme could not be read completely: ") +
                      error.what() + ".",
                  msg::kWarning, MsgIcon::Critical);
  } catch (const TamsicError&) {
    // A missing section was already shown to the user by the reader.
  }
}

std::string RenumberOldMortalityVar(std::string_view name) {
  static constexpr std::string_view kPrefixes[] = {"FemaleMort", "MaleMort", "EVFemaleMort", "EVMaleMort"};
  for (std::string_view prefix : kPrefixes) {
    if (name.substr(0, prefix.size()) != prefix) continue;
    std::string renamed(name.substr(0, name.size() - 1));
    const int age = static_cast<int>(LeadingNumber(name.substr(name.size() - 1)));
    return renamed + std::to_string(age - 1);
  }
  return std::string(name);
}

}  // namespace tamsic
