#include "sim/ProjectReader.h"

#include <filesystem>

#include "files/ProjectFile.h"
#include "files/ProjectSignature.h"
#include "sim/SimError.h"

namespace tamsic::sim {

namespace {

// Collects what the reader would show, so that it can become the reply.
class CollectingBox : public IMessageBox {
 public:
  MsgAnswer show(const MessageBoxRequest& request) override {
    if (!text.empty()) text += "; ";
    text += request.text;
    return MsgAnswer::Ok;
  }
  std::string text;
};

// The texts of the messages the project reader shows about a damaged file,
// so that the reply says what the desktop program would; the engine carries
// none of the program's string table.
class ReaderTexts : public IStringTable {
 public:
  std::string text(int number) const override {
    switch (number) {
      case msg::kUnableToFindSection: return "Unable to find section ";
      case msg::kProblemWithData: return "There is a problem with the data";
      case msg::kModifiedManually: return "Have you modified the data file manually?";
      default: return {};
    }
  }
};

}  // namespace

ProjectDocument ReadWorkFile(const std::string& path) {
  if (!std::filesystem::exists(path)) throw SimError("the project file " + path + " does not exist");
  CollectingBox box;
  ReaderTexts strings;
  Messages messages(box, strings);
  try {
    const auto version = IsTamsicProject(path, messages);
    if (!version) throw SimError("the file " + path + " is not a Tamsic project file");
    ProjectDocument project = LoadProject(path, *version, messages);
    if (!box.text.empty()) throw SimError("the project file " + path + " is damaged: " + box.text);
    return project;
  } catch (const SimError&) {
    throw;
  } catch (const std::exception& failure) {
    throw SimError("the project file " + path + " cannot be read: " + (box.text.empty() ? failure.what() : box.text));
  }
}

const clsScenario& FindScenario(const ProjectDocument& project, const std::string& name) {
  std::size_t number = project.scenarios.Find(name);
  if (number == 0 && !name.empty() && name.find_first_not_of("0123456789") == std::string::npos) {
    const unsigned long given = std::stoul(name);
    if (given >= 1 && given <= project.scenarios.Count()) number = given;
  }
  if (number == 0) throw SimError("there is no scenario \"" + name + "\" in the project file");
  // A second scenario of the same name would never run, and the first would be reported twice.
  const std::string& found = project.scenarios.Item(number).Text(F("txtSceneName"));
  if (const std::size_t other = project.scenarios.Find(found, number))
    throw SimError("scenarios " + std::to_string(number) + " and " + std::to_string(other) + " are both named \"" +
                   found + "\"; give each scenario a name of its own");
  return project.scenarios.Item(number);
}

}  // namespace tamsic::sim
