// The run table (.run): per iteration and population (then the
// metapopulation) whether it went extinct, when, and its final state.
#include "report/Outcome.h"
#include "report/TextFile.h"

namespace tamsic::report {

void WriteRunTable(const Outcome& o, const std::string& path) {
  TextFile file(path);
  file.line("$Iteration;Population;Extinct;Year of extinction;N;GeneDiv;Inbreeding;#Alleles;#Lethals");
  for (const sim::FinalState& f : o.results.finals()) {
    const std::string population =
        f.block < o.model.populations ? std::to_string(f.block + 1) : std::string("Metapopulation");
    file.line(std::to_string(f.iteration) + ";" + population + ";" + (f.firstExtinction >= 0 ? "1" : "0") + ";" +
              (f.firstExtinction >= 0 ? std::to_string(f.firstExtinction) : std::string()) + ";" +
              std::to_string(f.census.n) + ";" + Num(f.census.geneDiversity) + ";" + Num(f.census.inbreeding) +
              ";" + Num(f.census.alleles) + ";" + Num(f.census.lethals));
  }
  file.close();
}

}  // namespace tamsic::report
