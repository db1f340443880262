#include "sim/ReadGenetics.h"

#include <algorithm>

#include "model/TextSplit.h"
#include "sim/AlleleFrequencies.h"
#include "sim/SimError.h"

namespace tamsic::sim {

namespace {

void ReadTally(const CellReader& in, const Model& m, GeneticManagement& g) {
  const bool first = in.Truth(F("GTallyOptButton_0"));
  const bool allButFirst = in.Truth(F("GTallyOptButton_1"));
  if (first + allButFirst + in.Truth(F("GTallyOptButton_2")) > 1)
    throw SimError("LociToTally: only one of Locus1Only, NotLocus1 and AllLoci may be chosen");
  g.talliedFirst = allButFirst ? 1 : 0;
  g.talliedLoci = first ? 1 : m.neutralLoci - g.talliedFirst;
  if (g.talliedLoci < 1)
    throw SimError("NotLocus1: all loci but locus 1 leaves nothing to tally with a single neutral locus "
                   "(NumNeutralLoci)");
}

// Reads the file that a checked import names; a fault names the input first.
template <class Read>
auto FromFile(const CellReader& in, Field name, const char* key, const std::filesystem::path& folder, Read read) {
  const std::string file(Trim(in.scenario().Text(name)));
  if (file.empty()) throw SimError(std::string(key) + ": the import is checked but no file is named");
  try {
    return read(ReadInputFile(folder, file));
  } catch (const SimError& fault) {
    throw SimError(std::string(key) + ": " + fault.what());
  }
}

void ReadFounderAlleles(const CellReader& in, const Model& m, const std::filesystem::path& folder,
                        GeneticManagement& g) {
  const auto frequencies = FromFile(in, F("txtGenMgtAlleleFreqs"), "AlleleFreqsFile", folder,
                                    [&](const InputFile& f) { return ReadAlleleFrequencies(f, m.neutralLoci); });
  for (const std::vector<double>& locus : frequencies) {
    g.founderAlleles.emplace_back(0, locus);
    g.alleleKinds = std::max(g.alleleKinds, static_cast<std::uint32_t>(locus.size()));
  }
}

// With matings prevented above a level, the pair's kinship (their young's
// inbreeding) may be at most the level, or the pairing limit when that is lower.
void ReadMatingLimit(const CellReader& in, GeneticManagement& g) {
  if (!in.Checked(F("chkGenMgtPreventMatingsF"))) return;
  for (Field level : {F("txtGenMgtPreventMatingsF"), F("txtGenMgtPairingLimitation")}) {
    if (Trim(in.scenario().Text(level)).empty()) continue;
    const double value = in.Number(level, 1.0);
    g.kinshipLimit = g.kinshipLimit ? std::min(*g.kinshipLimit, value) : value;
  }
  if (!g.kinshipLimit)
    throw SimError("PreventMatingsFValue: preventing matings above an inbreeding level needs the level (0 to 1)");
  g.tries = in.Whole(F("txtGenMgtNumTimesTryFindMate"), 10);
}

}  // namespace

GeneticManagement ReadGenetics(const CellReader& in, const Model& m, const std::filesystem::path& folder) {
  GeneticManagement g;
  ReadTally(in, m, g);
  if (in.Checked(F("chkGenMgtImportStudbookFile")))
    g.studbook = FromFile(in, F("txtGenMgtImportStudbookFile"), "StudbookFile", folder, [&](const InputFile& f) {
      return ReadStudbook(f, m.populations, m.maxAge, m.sexual());
    });
  if (in.Checked(F("chkGenMgtAlleleFreqs"))) ReadFounderAlleles(in, m, folder, g);
  g.breedToCapacity = in.Checked(F("chkGenMgtBreedToMaintinK"));
  g.pairByMeanKinship = in.Checked(F("chkGenMgtPairMeanKinship"));
  g.dynamicMeanKinship = !in.Truth(F("SSOptGenMgtPairMK_1"));
  if (g.pairByMeanKinship && !m.sexual())
    throw SimError("PairMeanKinship: pairing by mean kinship pairs females with males; the mating system is "
                   "hermaphroditic");
  ReadMatingLimit(in, g);
  if (g.managesBreeding()) g.maxMates = in.Whole(F("txtGenMgtMaxNumMates"), 1);
  g.genePopFile = in.Checked(F("chkGenMgtOutputGenePop"));
  g.alleleFrequencyFile = in.Checked(F("chkGenMgtOutputAlleleFreq"));
  return g;
}

}  // namespace tamsic::sim
