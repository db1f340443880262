#include "sim/ProjectReader.h"

#include <filesystem>

#include "app/EnglishMessages.h"
#include "files/ProjectOpen.h"
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

}  // namespace

ProjectDocument ReadWorkFile(const std::string& path) {
  if (!std::filesystem::exists(path)) throw SimError("the project file " + path + " does not exist");
  CollectingBox box;
  EnglishMessages strings;
  Messages messages(box, strings);
  try {
    auto opened = OpenProjectFile(path, messages, false);
    if (!opened) throw SimError("the file " + path + " is not a Tamsic project file");
    if (!box.text.empty()) throw SimError("the project file " + path + " is damaged: " + box.text);
    return std::move(opened->document);
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
