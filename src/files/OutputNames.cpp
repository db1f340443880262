#include "files/OutputNames.h"

#include "model/TextSplit.h"

namespace tamsic {

namespace {

bool Refused(unsigned char c) {
  return c < 0x20 || c == 0x7F || std::string_view("/\\:*?\"<>|").find(static_cast<char>(c)) != std::string_view::npos;
}

}  // namespace

std::string FileNamePart(std::string_view text) {
  std::string part(Trim(text));
  for (std::size_t i = 0; i < part.size(); ++i) {
    const bool climbs = part[i] == '.' && i + 1 < part.size() && part[i + 1] == '.';
    if (Refused(static_cast<unsigned char>(part[i])) || climbs) part[i] = '_';
  }
  return part;
}

std::string ScenarioFileName(const std::string& project, const std::string& scenario, std::string_view extension) {
  return FileNamePart(project) + "_" + FileNamePart(scenario) + std::string(extension);
}

std::string SummaryFileName(const std::string& project) { return FileNamePart(project) + ".sum"; }

}  // namespace tamsic
