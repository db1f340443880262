#include "report/ExtraFiles.h"

#include <filesystem>

#include "report/Outcome.h"

namespace tamsic::report {

namespace {

std::string Join(std::initializer_list<std::string> fields) {
  std::string line;
  for (const std::string& field : fields) line += (line.empty() ? "" : ";") + field;
  return line;
}

std::string Sex(const sim::Model& m, const sim::Individual& ind) {
  if (!m.sexual()) return "H";
  return ind.sex == sim::kMale ? "M" : "F";
}

std::string Origin(sim::Origin origin) {
  switch (origin) {
    case sim::Origin::Founder: return "Founder";
    case sim::Origin::Supplement: return "Supplement";
    case sim::Origin::Born: return "Born";
  }
  return "";
}

std::string Population(const sim::Model& m, int block) {
  return block < m.populations ? std::to_string(block + 1) : std::string("Metapopulation");
}

}  // namespace

ExtraFiles::ExtraFiles(const sim::Model& model, const std::string& project) : model_(model) {
  const sim::Options& o = model.options;
  try {
    if (o.livingFile) {
      std::string heading = "$Iteration;Population;ID;Dam;Sire;Sex;Age;Inbreeding;Lethals;Offspring;Mates";
      for (std::size_t k = 1; k <= model.individualStates.size(); ++k) heading += ";IS" + std::to_string(k);
      living_ = open(project, ".liv", heading);
    }
    if (o.createdFile)
      created_ = open(project, ".all",
                      "$Iteration;ID;Dam;Sire;Sex;Population;Year;Origin;Age;Inbreeding;Lethals;Last census alive");
    if (o.censusFile)
      census_ = open(project, ".cen",
                     "$Iteration;Year;Population;N;Females;Males;Adult females;Adult males;Juveniles;Subadults;K;"
                     "Extinct;GeneDiv;Inbreeding;#Alleles;#Lethals");
  } catch (...) {
    discard();
    throw;
  }
}

ExtraFiles::~ExtraFiles() = default;

std::unique_ptr<TextFile> ExtraFiles::open(const std::string& project, const std::string& extension,
                                           const std::string& heading) {
  paths_.push_back(ScenarioFile(project, model_.name, extension));
  auto file = std::make_unique<TextFile>(paths_.back());
  file->line(heading);
  return file;
}

void ExtraFiles::add(int iteration, const sim::IterationRecord& record) {
  const std::string it = std::to_string(iteration);
  const sim::Journal& j = record.journal;
  const std::size_t states = model_.individualStates.size();
  if (living_)
    for (std::size_t n = 0; n < j.living.size(); ++n) {
      const sim::LivingEntry& e = j.living[n];
      const sim::Individual& ind = e.individual;
      std::string line = Join({it, std::to_string(e.population + 1), std::to_string(ind.id), std::to_string(ind.dam),
                               std::to_string(ind.sire), Sex(model_, ind), std::to_string(ind.age),
                               Num(ind.inbreeding), std::to_string(ind.lethals), std::to_string(ind.parity),
                               std::to_string(ind.mates)});
      for (std::size_t k = 0; k < states; ++k) line += ";" + Num(j.livingStates[n * states + k]);
      living_->line(line);
    }
  if (created_)
    for (const sim::CreatedEntry& e : j.created) {
      const sim::Individual& ind = e.individual;
      created_->line(Join({it, std::to_string(ind.id), std::to_string(ind.dam), std::to_string(ind.sire),
                           Sex(model_, ind), std::to_string(e.population + 1), std::to_string(e.year),
                           Origin(e.origin), std::to_string(ind.age), Num(ind.inbreeding), std::to_string(ind.lethals),
                           e.lastCensus >= 0 ? std::to_string(e.lastCensus) : std::string()}));
    }
  // K is first drawn for year 1, so the founders' census has none.
  if (census_)
    for (const sim::CensusEntry& e : j.census) {
      const sim::Census& c = e.census;
      census_->line(Join({it, std::to_string(e.year), Population(model_, e.block), std::to_string(c.n),
                          std::to_string(e.females), std::to_string(e.males), std::to_string(e.adultFemales),
                          std::to_string(e.adultMales), std::to_string(e.juveniles), std::to_string(e.subadults),
                          e.year == 0 ? std::string() : Num(e.capacity), c.extinct ? "1" : "0", Num(c.geneDiversity), Num(c.inbreeding),
                          Num(c.alleles), Num(c.lethals)}));
    }
}

void ExtraFiles::close() {
  for (auto* file : {&living_, &created_, &census_}) {
    if (*file) (*file)->close();
    file->reset();
  }
}

void ExtraFiles::discard() {
  living_.reset();
  created_.reset();
  census_.reset();
  std::error_code ignored;
  for (const std::string& path : paths_) std::filesystem::remove(path, ignored);
  paths_.clear();
}

}  // namespace tamsic::report
