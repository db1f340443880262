#pragma once
// The genetic-management page: which loci are tallied, the studbook and the
// allele frequencies (files read and checked here), the management of
// breeding and the genetic output files.
#include <filesystem>

#include "sim/CellReader.h"
#include "sim/Model.h"

namespace tamsic::sim {

// `model` holds the settings, species and reproduction read so far; files
// are found in `folder` when their names are not absolute.
GeneticManagement ReadGenetics(const CellReader& in, const Model& model, const std::filesystem::path& folder);

}  // namespace tamsic::sim
