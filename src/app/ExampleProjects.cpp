#include "app/ExampleProjects.h"

#include <algorithm>

namespace tamsic {

std::vector<std::filesystem::path> ExampleProjects(const std::filesystem::path& programFolder) {
  const std::filesystem::path folders[] = {programFolder / "examples",
                                           programFolder / ".." / "share" / "tamsic" / "examples",
                                           TAMSIC_EXAMPLES_SOURCE};
  for (const auto& folder : folders) {
    std::vector<std::filesystem::path> found;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error))
      if (entry.path().extension() == ".tpj" && entry.is_regular_file(error)) found.push_back(entry.path());
    if (found.empty()) continue;
    std::sort(found.begin(), found.end());
    return found;
  }
  return {};
}

}  // namespace tamsic
