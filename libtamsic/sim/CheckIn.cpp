#include "sim/CheckIn.h"

#include <array>
#include <filesystem>
#include <memory>
#include <mutex>

#include "model/TextNumbers.h"
#include "model/TextSplit.h"
#include "report/Outcome.h"
#include "report/Reports.h"
#include "report/TextFile.h"
#include "sim/LifeTable.h"
#include "sim/Monopolization.h"
#include "sim/ProjectReader.h"
#include "sim/ReadModel.h"
#include "sim/SimError.h"

namespace tamsic::sim {

namespace {

struct Checked {
  std::string project;
  clsScenario scenario;
  Model model;
  std::vector<LifeTable> tables;
};

class CheckedIn {
 public:
  static CheckedIn& get() {
    static CheckedIn held;
    return held;
  }
  void set(std::shared_ptr<const Checked> checked) {
    std::lock_guard lock(mutex_);
    checked_ = std::move(checked);
  }
  std::shared_ptr<const Checked> current() {
    std::lock_guard lock(mutex_);
    if (!checked_) throw SimError("no scenario has been checked in yet (tcheckin)");
    return checked_;
  }

 private:
  std::mutex mutex_;
  std::shared_ptr<const Checked> checked_;
};

std::shared_ptr<const Checked> Load(const std::string& text) {
  const auto open = text.rfind('{');
  const auto close = text.rfind('}');
  if (open == std::string::npos || close == std::string::npos || close < open)
    throw SimError("\"" + text + "\" is not a project file followed by {scenario number}");
  const std::string path(Trim(std::string_view(text).substr(0, open)));
  const auto number = ExactNumber(text.substr(open + 1, close - open - 1));
  const ProjectDocument project = ReadWorkFile(path);
  if (!number || *number < 1 || *number > static_cast<double>(project.scenarios.Count()))
    throw SimError("the project has no scenario number " + text.substr(open + 1, close - open - 1));
  auto checked = std::make_shared<Checked>();
  checked->project = project.title;
  checked->scenario = project.scenarios.Item(static_cast<std::size_t>(*number));
  try {
    checked->model = ReadModel(checked->scenario, std::filesystem::current_path(), {});
  } catch (const SimError& fault) {
    throw SimError("scenario \"" + checked->scenario.Text(F("txtSceneName")) + "\": " + fault.what());
  }
  for (int p = 0; p < checked->model.populations; ++p) checked->tables.push_back(BuildLifeTable(checked->model, p));
  return checked;
}

template <class Work>
std::string Answer(Work&& work) {
  try {
    return work();
  } catch (const std::exception& fault) {
    return std::string("Error: ") + fault.what();
  }
}

std::string Joined(const std::vector<int>& numbers) {
  std::string text;
  for (int n : numbers) text += (text.empty() ? "" : ";") + std::to_string(n);
  return text;
}

}  // namespace

std::string CheckIn(const std::string& text, std::int32_t flag) {
  return Answer([&] {
    const auto checked = Load(text);
    CheckedIn::get().set(checked);
    if (flag == 1) {
      const std::string& name = checked->model.name;
      report::WriteInputReport(checked->scenario, report::ScenarioFile(checked->project, name, ".inp"));
      report::WriteDeterministicReport(checked->model, checked->tables,
                                       report::ScenarioFile(checked->project, name, ".det"));
    }
    return "Message: scenario \"" + checked->model.name + "\" checked";
  });
}

std::string AgeDistribution(int size) {
  return Answer([&] {
    if (size < 0) throw SimError("the population size " + std::to_string(size) + " is negative");
    const auto checked = CheckedIn::get().current();
    std::vector<int> numbers[2];
    StableNumbers(checked->tables.front(), size, numbers);
    return Joined(numbers[0]) + ":" + Joined(numbers[1]);
  });
}

std::string DeterministicValues(const std::string& text, std::int32_t years) {
  return Answer([&] {
    if (!Trim(text).empty()) CheckedIn::get().set(Load(text));
    const auto checked = CheckedIn::get().current();
    const std::vector<double> n = report::ProjectAll(checked->model, checked->tables, years);
    std::string reply;
    for (double value : n) reply += (reply.empty() ? "" : ";") + report::Num(value);
    return reply;
  });
}

std::string MatesEquivalents(int index, const std::array<double, 4>& values) {
  return Answer([&] {
    const auto checked = CheckedIn::get().current();
    const int pop = values[3] == 0 ? 0 : static_cast<int>(values[3]) - 1;
    if (pop < 0 || pop >= checked->model.populations)
      throw SimError("the scenario has no population " + report::Num(values[3]));
    if (index < 0 || index > 2)
      throw SimError("the measure to compute must be 0, 1 or 2, not " + std::to_string(index));
    int known = -1;
    for (int k = 0; k < 3 && known < 0; ++k)
      if (k != index && values[static_cast<std::size_t>(k)] > 0) known = k;
    if (known < 0) throw SimError("one of the other two measures must be given");
    const Monopolization m = Equivalents(checked->model, checked->tables[static_cast<std::size_t>(pop)], pop, known,
                                         values[static_cast<std::size_t>(known)]);
    return report::Num(m.inPool) + ";" + report::Num(m.siring) + ";" + report::Num(m.perSire) + ";" +
           std::to_string(pop + 1);
  });
}

void ForgetCheckIn() { CheckedIn::get().set(nullptr); }

}  // namespace tamsic::sim
