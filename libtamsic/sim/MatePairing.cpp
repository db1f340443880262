// Managed pairing. A male takes at most MaxNumMates females a year (one in
// the monogamous systems).
//
// By mean kinship, as captive breeding programmes pair: the female of the
// lowest mean kinship (MK) with the male of the lowest MK that suits her,
// then the next female, and so on. A male suits her when their kinship is
// at most the mating limit, looking at no more than the number of tries of
// the lowest-MK males; without a limit, the first male that is not a close
// relative (kinship below 1/4: parents, offspring, full sibs), or the least
// related when all are. Dynamic pairing recounts the MK of those still
// unpaired after each pair, as if the pair's young were already among the
// living (one young per pair), so that the relatives of a chosen pair move
// down the list; static pairing keeps the MK of the start of the season.
// Pairs are formed anew each year, long-term systems included.
//
// At random, with matings prevented above a kinship: the mating system's
// choice (long-term mates kept while allowed), each drawn male refused when
// the pair's kinship is above the limit; a female refused as many times as
// the number of tries does not breed this year.
#include <algorithm>
#include <numeric>

#include "sim/ManagedBreeding.h"

namespace tamsic::sim {

namespace {

constexpr std::uint32_t kNone = UINT32_MAX;
constexpr double kCloseRelatives = 0.25;

int MateCap(const Model& m) {
  const bool one = m.mating == Mating::Monogamous || m.mating == Mating::LongTermMonogamous;
  return one ? 1 : m.genetics.maxMates;
}

// The females that keep the population at K: those of the lowest MK when
// pairing by it, else chosen at random.
void KeepToCapacity(const Model& m, const PopulationModel& p, PopulationState& pop, World& world,
                    SimContext& context, const std::vector<double>& mk, std::vector<std::uint32_t>& mothers) {
  const std::size_t wanted = FemalesToKeepCapacity(m, p, pop, context);
  if (mothers.size() <= wanted) return;
  if (!mk.empty()) {
    std::stable_sort(mothers.begin(), mothers.end(), [&](std::uint32_t a, std::uint32_t b) { return mk[a] < mk[b]; });
  } else {
    for (std::size_t k = 0; k < wanted; ++k)
      std::swap(mothers[k], mothers[k + world.random.below(static_cast<std::uint32_t>(mothers.size() - k))]);
  }
  mothers.resize(wanted);
}

void PairAtRandom(const Model& m, const PopulationState& pop, World& world, const std::vector<std::uint32_t>& mothers,
                  std::vector<std::uint32_t>& pool, std::vector<std::uint32_t>& sires) {
  const GeneticManagement& g = m.genetics;
  const std::vector<Individual>& members = pop.members;
  const int cap = MateCap(m);
  std::vector<int> taken(members.size(), 0);
  std::size_t available = pool.size();  // pool[0 .. available) may take another female
  auto take = [&](std::size_t k) {
    const std::uint32_t male = pool[k];
    if (++taken[male] == cap) std::swap(pool[k], pool[--available]);
    return male;
  };
  auto allowed = [&](std::uint32_t female, std::uint32_t male) {
    return !g.kinshipLimit || PairKinship(world, members[female], members[male]) <= *g.kinshipLimit;
  };
  if (m.mating == Mating::LongTermMonogamous || m.mating == Mating::LongTermPolygamous)
    for (std::size_t f = 0; f < mothers.size(); ++f) {
      const std::uint32_t mate = members[mothers[f]].mate;
      if (mate == 0) continue;
      const auto end = pool.begin() + static_cast<long>(available);
      const auto k = std::find_if(pool.begin(), end, [&](std::uint32_t male) { return members[male].id == mate; });
      if (k != end && allowed(mothers[f], *k)) sires[f] = take(static_cast<std::size_t>(k - pool.begin()));
    }
  const int tries = g.kinshipLimit ? g.tries : 1;
  for (std::size_t f = 0; f < mothers.size(); ++f)
    for (int t = 0; t < tries && sires[f] == kNone && available > 0; ++t) {
      const std::size_t k = world.random.below(static_cast<std::uint32_t>(available));
      if (allowed(mothers[f], pool[k])) sires[f] = take(k);
    }
}

class KinshipPairing {
 public:
  KinshipPairing(const Model& m, const PopulationState& pop, const World& world, std::vector<double>& mk)
      : g_(m.genetics), members_(pop.members), world_(world), mk_(mk), cap_(MateCap(m)),
        taken_(pop.members.size(), 0), weight_(static_cast<double>(pop.members.size())) {
    for (double value : mk_) sums_.push_back(value * weight_);
  }

  void pair(const std::vector<std::uint32_t>& mothers, const std::vector<std::uint32_t>& pool,
            std::vector<std::uint32_t>& sires) {
    std::vector<std::size_t> unpaired(mothers.size());
    std::iota(unpaired.begin(), unpaired.end(), 0);
    males_ = pool;
    while (!unpaired.empty()) {
      const auto next = std::min_element(unpaired.begin(), unpaired.end(), [&](std::size_t a, std::size_t b) {
        return lower(mothers[a], mothers[b]);
      });
      const std::size_t f = *next;
      unpaired.erase(next);
      const std::uint32_t male = choose(mothers[f]);
      if (male == kNone) continue;
      sires[f] = male;
      if (++taken_[male] == cap_) males_.erase(std::find(males_.begin(), males_.end(), male));
      if (g_.dynamicMeanKinship) recount(mothers[f], male, mothers, unpaired);
    }
  }

 private:
  // Lower MK first; the earlier member on a tie, so that runs repeat.
  bool lower(std::uint32_t a, std::uint32_t b) const { return mk_[a] < mk_[b] || (mk_[a] == mk_[b] && a < b); }
  double kinship(std::uint32_t a, std::uint32_t b) const { return PairKinship(world_, members_[a], members_[b]); }

  // Only as many males are put in order as she may look at: usually the first suits her.
  std::uint32_t choose(std::uint32_t female) {
    auto inOrder = [&](std::size_t count) {
      std::partial_sort(males_.begin(), males_.begin() + static_cast<long>(std::min(count, males_.size())),
                        males_.end(), [&](std::uint32_t a, std::uint32_t b) { return lower(a, b); });
    };
    if (g_.kinshipLimit) {
      const std::size_t examined = std::min(males_.size(), static_cast<std::size_t>(g_.tries));
      inOrder(examined);
      for (std::size_t k = 0; k < examined; ++k)
        if (kinship(female, males_[k]) <= *g_.kinshipLimit) return males_[k];
      return kNone;
    }
    inOrder(1);
    if (!males_.empty() && kinship(female, males_.front()) < kCloseRelatives) return males_.front();
    inOrder(males_.size());
    std::uint32_t closest = kNone;
    double least = 2.0;
    for (std::uint32_t male : males_) {
      const double k = kinship(female, male);
      if (k < kCloseRelatives) return male;
      if (k < least) least = k, closest = male;
    }
    return closest;
  }

  void recount(std::uint32_t female, std::uint32_t male, const std::vector<std::uint32_t>& mothers,
               const std::vector<std::size_t>& unpaired) {
    weight_ += 1.0;
    auto add = [&](std::uint32_t i) {
      sums_[i] += 0.5 * (kinship(i, female) + kinship(i, male));
      mk_[i] = sums_[i] / weight_;
    };
    for (std::size_t f : unpaired) add(mothers[f]);
    for (std::uint32_t m : males_) add(m);
  }

  const GeneticManagement& g_;
  const std::vector<Individual>& members_;
  const World& world_;
  std::vector<double>& mk_;
  const int cap_;
  std::vector<int> taken_;
  double weight_;  // the living, and a young for each pair formed so far
  std::vector<double> sums_;
  std::vector<std::uint32_t> males_;  // who may still take a female
};

}  // namespace

void ManageBreeding(const Model& m, const PopulationModel& inputs, PopulationState& pop, World& world,
                    SimContext& context, std::vector<std::uint32_t>& mothers, std::vector<std::uint32_t>& pool,
                    std::vector<std::uint32_t>& sires) {
  std::vector<double> mk;
  if (m.genetics.pairByMeanKinship) MeanKinships(world, pop.members, mk);
  if (m.genetics.breedToCapacity) KeepToCapacity(m, inputs, pop, world, context, mk, mothers);
  sires.assign(mothers.size(), kNone);
  if (m.genetics.pairByMeanKinship) KinshipPairing(m, pop, world, mk).pair(mothers, pool, sires);
  else PairAtRandom(m, pop, world, mothers, pool, sires);
}

}  // namespace tamsic::sim
