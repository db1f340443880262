#pragma once
// The example projects shipped with the program, which a new project may
// start from. They sit in "examples" beside the program in a build, under
// share/tamsic/examples in an installation, or in the source tree.
#include <filesystem>
#include <vector>

namespace tamsic {

// The example project files, sorted by name; none when no folder holds any.
std::vector<std::filesystem::path> ExampleProjects(const std::filesystem::path& programFolder);

}  // namespace tamsic
