#include "st/STRegression.h"

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <optional>

namespace tamsic {

namespace {

// Inputs whose z-scores correlate this closely move in step.
constexpr double kInStep = 1e-9;

// The z-scores of the values, with the sample standard deviation; nothing
// when they do not vary.
std::optional<Eigen::VectorXd> ZScores(const Eigen::VectorXd& values) {
  const auto n = values.size();
  if (n < 2) return std::nullopt;
  const Eigen::VectorXd centred = values.array() - values.mean();
  const double sd = std::sqrt(centred.squaredNorm() / static_cast<double>(n - 1));
  // Values that differ only by rounding do not vary.
  if (!(sd > 1e-12 * std::max(1.0, values.cwiseAbs().maxCoeff()))) return std::nullopt;
  return centred / sd;
}

struct Group {
  std::vector<std::string> names;
  Eigen::VectorXd z;
};

}  // namespace

Ranking RankInputs(const RegressionData& data) {
  Ranking ranking;
  const auto n = static_cast<Eigen::Index>(data.results.size());
  ranking.scenarios = static_cast<int>(n);
  // Under two scenarios nothing can be seen to vary: too few, whatever the inputs.
  if (n < 2 && !data.inputs.empty()) {
    ranking.outcome = Ranking::Outcome::TooFewScenarios;
    ranking.needed = static_cast<int>(data.inputs.size()) + 2;
    return ranking;
  }

  std::vector<Group> groups;
  for (std::size_t j = 0; j < data.inputs.size(); ++j) {
    Eigen::VectorXd x(n);
    for (Eigen::Index i = 0; i < n; ++i) x(i) = data.rows[i][j];
    const auto z = ZScores(x);
    if (!z) {
      ranking.constant.push_back(data.inputs[j]);
      continue;
    }
    const auto inStep = std::find_if(groups.begin(), groups.end(), [&](const Group& group) {
      return std::abs(std::abs(z->dot(group.z) / static_cast<double>(n - 1)) - 1.0) < kInStep;
    });
    if (inStep != groups.end())
      inStep->names.push_back(data.inputs[j]);
    else
      groups.push_back({{data.inputs[j]}, *z});
  }

  const auto k = static_cast<Eigen::Index>(groups.size());
  ranking.needed = static_cast<int>(k) + 2;
  if (k == 0) return ranking;
  ranking.outcome = Ranking::Outcome::TooFewScenarios;
  if (n < k + 2) return ranking;
  const auto y = ZScores(Eigen::Map<const Eigen::VectorXd>(data.results.data(), n));
  ranking.outcome = Ranking::Outcome::ResultConstant;
  if (!y) return ranking;

  Eigen::MatrixXd z(n, k);
  for (Eigen::Index g = 0; g < k; ++g) z.col(g) = groups[g].z;
  const Eigen::ColPivHouseholderQR<Eigen::MatrixXd> fit(z);
  ranking.outcome = Ranking::Outcome::Dependent;
  if (fit.rank() < k) return ranking;

  const Eigen::VectorXd coefficients = fit.solve(*y);
  ranking.rSquared = 1.0 - (*y - z * coefficients).squaredNorm() / y->squaredNorm();
  for (Eigen::Index g = 0; g < k; ++g) ranking.inputs.push_back({groups[g].names, coefficients(g)});
  std::stable_sort(ranking.inputs.begin(), ranking.inputs.end(), [](const RankedInput& a, const RankedInput& b) {
    return std::abs(a.coefficient) > std::abs(b.coefficient);
  });
  ranking.outcome = Ranking::Outcome::Ranked;
  return ranking;
}

}  // namespace tamsic
