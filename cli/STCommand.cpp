#include "STCommand.h"

#include <iostream>

#include "RunCommand.h"
#include "engine/Engine.h"
#include "files/Backups.h"
#include "files/ProjectFile.h"
#include "files/TextCodec.h"
#include "st/STGeneration.h"

namespace tamsic {

namespace {

void PrintProblems(const std::vector<STProblem>& problems, const STScheme& scheme, const std::string& path) {
  std::cerr << "The sensitivity-test scheme of " << path << " cannot be generated:\n";
  for (const STProblem& problem : problems)
    std::cerr << "  item " << problem.item << " (" << Cp1252ToUtf8(scheme.Items[problem.item].Label)
              << "): " << Cp1252ToUtf8(problem.text) << "\n";
}

}  // namespace

int GenerateSTCommand(const STArguments& arguments, Messages& messages, StderrMessageBox& box) {
  auto opened = OpenForReading(arguments.project, messages, box);
  if (!opened) return 1;
  ProjectDocument& project = opened->document;
  LibraryEngine engine;
  const auto problems = CheckSTScheme(project.scenarios, project.stScheme, engine);
  if (!problems.empty()) {
    PrintProblems(problems, project.stScheme, arguments.project);
    return 1;
  }
  const std::size_t first = GenerateSTScenarios(project.scenarios, project.stScheme);
  const bool inPlace = arguments.out.empty();
  const std::string target = inPlace ? arguments.project : arguments.out;
  // As when the program opens a project and saves it: the file as it was
  // becomes the newest backup, and is replaced only once the new one is whole.
  if (inPlace) RotateBackups(target);
  SaveProject(project, target, messages);
  std::cout << "Sensitivity-test scenarios written to " << target << ":\n";
  for (std::size_t n = first; n <= project.scenarios.Count(); ++n)
    std::cout << "  " << n << ". " << Cp1252ToUtf8(project.scenarios.Item(n).Text(F("txtSceneName"))) << "\n";
  if (first > project.scenarios.Count()) std::cout << "  none: the scheme has no items\n";
  return 0;
}

}  // namespace tamsic
