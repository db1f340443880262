#include "files/ProjectFile.h"

#include <charconv>
#include <filesystem>

#include "files/AtomicFile.h"
#include "files/STFile.h"
#include "files/TextCodec.h"
#include "model/Errors.h"
#include "model/TextNumbers.h"
#include "model/TextSplit.h"

namespace tamsic {

namespace {

constexpr std::string_view kGeneral = "General Project Information";
constexpr std::string_view kReport = "Project Report";

struct OptionKey {
  std::string_view key;
  std::string_view comment;
};
constexpr OptionKey kOptionKeys[10] = {
    {"SpecialOptions0", "Show Symbols option"},
    {"SpecialOptions1", "Translocate option"},
    {"SpecialOptions2", "Exclude last pop option"},
    {"SpecialOptions3", "No dispersal into saturated pop option"},
    {"SpecialOptions4", "Extinction = Decline option"},
    {"SpecialOptions5", "Output all animals option"},
    {"SpecialOptions6", "Census file option"},
    {"SpecialOptions7", "Clear Lines option"},
    {"SpecialOptions8", "Max K option"},
    {"SpecialOptions9", "Output full animal list option"},
};

std::string FolderOf(const std::string& path) {
  return std::filesystem::absolute(path).parent_path().string();
}

void WriteGeneral(clsSaveFile& file, const ProjectDocument& project, const std::string& path) {
  file.StartSection(kGeneral, false);
  file.SaveEntry("ProjectTitle", project.title, "Project Title");
  file.SaveEntry("ProjectPath", FolderOf(path), "Project Working Path");
  file.SaveEntry("ProjectNotes", project.notes);
  file.SaveEntry("Users", clsSaveFile::ListboxToString(project.users), {}, false);
  file.SaveEntry("NumScene", std::to_string(project.scenarios.Count()),
                 "Number of Scenarios (Do not modify !!!)");
  const SpecialOptions& options = project.specialOptions;
  for (int i = 0; i < 10; ++i) {
    file.SaveEntry(kOptionKeys[i].key, std::to_string(options.checked[i]), kOptionKeys[i].comment);
    if (i == 1) file.SaveEntry("SpecialOptions1txt", options.option1Text);
    if (i == 6) file.SaveEntry("SpecialOptions6txt", options.option6Text);
    if (i == 8) file.SaveEntry("SpecialOptions8txt", options.option8Text);
  }
  file.SaveEntry("SpecialOptionsUndoc", options.undocumented, "Undocumented options");
}

void WriteReport(clsSaveFile& file, const ProjectDocument& project, const std::string& path) {
  file.StartSection(kReport, true);
  const std::string& location =
      project.reportLocation.empty() ? DefaultReportLocation(path) : project.reportLocation;
  file.SaveEntry("ReportLocation", location, "File path of the report");
}

// Option texts that hold numbers are read as numbers; an empty box stays empty.
std::string AsNumberText(const std::string& text) {
  return text.empty() ? text : NumberToText(LeadingNumber(text));
}

// A count that is missing or not a whole number would load as no scenarios,
// and the next save would drop them all.
std::size_t SceneCount(const std::string& text) {
  const std::string_view digits = Trim(text);
  std::size_t count = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), count);
  if (digits.empty() || error != std::errc() || end != digits.data() + digits.size())
    throw FileError("The number of scenarios (NumScene) is missing or not a whole number: \"" +
                    Cp1252ToUtf8(text) + "\"; the project was not loaded");
  return count;
}

void ReadGeneral(clsSaveFile& file, ProjectDocument& project, std::size_t& sceneCount) {
  auto read = [&](std::string_view key) { return file.GetEntryCache(key, kGeneral, true); };
  project.title = read("ProjectTitle");
  project.notes = read("ProjectNotes");
  project.users = clsSaveFile::StringToListbox(file.GetEntryCache("Users", kGeneral));
  sceneCount = SceneCount(read("NumScene"));
  SpecialOptions& options = project.specialOptions;
  for (int i = 0; i < 10; ++i) {
    options.checked[i] = LeadingInt(read(kOptionKeys[i].key));
    if (i == 1) options.option1Text = read("SpecialOptions1txt");
    if (i == 6) options.option6Text = AsNumberText(read("SpecialOptions6txt"));
    if (i == 8) options.option8Text = AsNumberText(read("SpecialOptions8txt"));
  }
  options.undocumented = read("SpecialOptionsUndoc");
}

}  // namespace

ProjectHeader GetTamsicHeader(const std::string& path, Messages& messages) {
  clsSaveFile file(messages);
  if (!file.OpenFile(path, clsSaveFile::ModeRead)) throw FileError("The project does not exist");
  file.ReadFile();
  ProjectHeader header;
  header.title = file.GetEntryCache("ProjectTitle", kGeneral, true);
  header.notes = file.GetEntryCache("ProjectNotes", kGeneral, true);
  header.users = clsSaveFile::StringToListbox(file.GetEntryCache("Users", kGeneral));
  return header;
}

std::string DefaultReportLocation(const std::string& projectPath) {
  const std::filesystem::path path = std::filesystem::absolute(projectPath);
  return (path.parent_path() / (path.stem().string() + "_report.rtf")).string();
}

std::string ScenarioSectionName(std::size_t number, ScenarioSection section) {
  return std::to_string(number) + " " + std::string(SectionTitle(section));
}

void SaveScenario(clsSaveFile& file, const clsScenario& scenario, std::size_t number) {
  bool first = true;
  ScenarioSection current{};
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    const FieldDescriptor& d = Describe(field);
    if (first || d.section != current) {
      file.StartSection(ScenarioSectionName(number, d.section), true);
      current = d.section;
      first = false;
    }
    if (d.kind == FieldKind::Grid)
      file.SaveEntry(d.key, file.GridBufferToString(scenario.GetGrid(field)), d.comment, false);
    else
      file.SaveEntry(d.key, scenario.ScalarText(field), d.comment, true);
  }
}

clsScenario LoadScenario(clsSaveFile& file, std::size_t number) {
  clsScenario scenario;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field{i};
    const FieldDescriptor& d = Describe(field);
    const std::string section = ScenarioSectionName(number, d.section);
    if (d.kind == FieldKind::Grid) {
      Grid grid;
      file.FillArray(file.GetEntryCache(d.key, section), grid);
      scenario.SetGrid(field, std::move(grid));
    } else {
      scenario.SetScalarText(field, file.GetEntryCache(d.key, section, true));
    }
  }
  return scenario;
}

void SaveProject(const ProjectDocument& project, const std::string& path, Messages& messages,
                 SaveOptions options) {
  clsSaveFile file(messages);
  file.SimplifiedDump(options.simplifiedDump);
  file.OpenFile(path, clsSaveFile::ModeWrite);
  file.WriteComment(kSignatureLine.substr(2));
  file.SkipLines(2);
  WriteGeneral(file, project, path);
  WriteReport(file, project, path);
  WriteSTScheme(project.stScheme, file);
  for (std::size_t n = 1; n <= project.scenarios.Count(); ++n)
    SaveScenario(file, project.scenarios.Item(n), n);
  file.CloseFile();
}

ProjectDocument LoadProject(const std::string& path, std::string_view versionText, Messages& messages,
                            char decimalSeparator) {
  clsSaveFile file(messages, decimalSeparator);
  if (!file.OpenFile(path, clsSaveFile::ModeRead)) throw FileError("The project does not exist");
  return ReadProject(file, versionText, messages);
}

ProjectDocument ReadProject(clsSaveFile& file, std::string_view versionText, Messages& messages) {
  file.ReadFile();
  ProjectDocument project;
  std::size_t sceneCount = 0;
  ReadGeneral(file, project, sceneCount);
  project.reportLocation = file.GetEntryCache("ReportLocation", kReport, true);
  if (!FileExists(project.reportLocation)) project.reportLocation.clear();
  ReadSTScheme(project.stScheme, file, LeadingNumber(versionText), messages);
  for (std::size_t n = 1; n <= sceneCount; ++n) project.scenarios.Add(LoadScenario(file, n));
  if (file.FindSectionInCache(ScenarioSectionName(sceneCount + 1, ScenarioSection::ScenarioNotes)))
    throw FileError("The file holds more scenarios than its number of scenarios (NumScene) says, " +
                    std::to_string(sceneCount) + "; the project was not loaded");
  return project;
}

}  // namespace tamsic
