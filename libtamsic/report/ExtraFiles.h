#pragma once
// The extra files that special options ask for, written while the
// iterations come in (in iteration order), so that a long run need not hold
// them in memory:
//   P_S.liv  ("A") everyone alive at the end of each iteration;
//   P_S.all  ("N") everyone created in each iteration, with the last census
//                  that counted them alive;
//   P_S.cen  ("Y") the census of every year of the first iterations.
#include <memory>
#include <string>
#include <vector>

#include "report/TextFile.h"
#include "sim/Model.h"
#include "sim/Record.h"

namespace tamsic::report {

class ExtraFiles {
 public:
  // Creates the files the model's options ask for (throws SimError when one cannot be created).
  ExtraFiles(const sim::Model& model, const std::string& project);
  ~ExtraFiles();
  ExtraFiles(const ExtraFiles&) = delete;
  ExtraFiles& operator=(const ExtraFiles&) = delete;

  void add(int iteration, const sim::IterationRecord& record);
  // Throws SimError when a write failed.
  void close();
  // Removes the files again: a scenario that failed or was cancelled leaves none.
  void discard();

 private:
  std::unique_ptr<TextFile> open(const std::string& project, const std::string& extension, const std::string& heading);

  const sim::Model& model_;
  std::vector<std::string> paths_;
  std::unique_ptr<TextFile> living_;
  std::unique_ptr<TextFile> created_;
  std::unique_ptr<TextFile> census_;
};

}  // namespace tamsic::report
