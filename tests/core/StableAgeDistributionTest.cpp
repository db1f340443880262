#include <gtest/gtest.h>

#include "model/NewScenario.h"
#include "model/ScenarioShape.h"
#include "pages/StableAgeDistribution.h"
#include "support/FakeEngine.h"

namespace tamsic {
namespace {

// Answers agedist with the size spread over three ages of each sex.
class AgeEngine : public test::FakeEngine {
 public:
  std::string tcheckin(const std::string& text, std::int32_t flag) override {
    checkedIn = text;
    checkInFlag = flag;
    return checkInReply;
  }
  std::string agedist(std::int16_t size) override {
    sizes.push_back(size);
    if (size == 13) return "Error: no stable distribution";
    return std::to_string(size / 4) + ";" + std::to_string(size / 4) + ";0:" + std::to_string(size / 2) + ";0;0";
  }

  std::string checkInReply = "Message: scenario loaded";
  std::string checkedIn;
  std::int32_t checkInFlag = -1;
  std::vector<int> sizes;
};

clsScenario TwoPopulations(const char* first, const char* second) {
  clsScenario s = NewScenarioDefaults();
  s.SetText(F("txtNumPop"), "2");
  s.SetText(F("txtMaxAgeRepro"), "4");
  RelayoutScenario(s);
  Grid sizes = s.GetGrid(F("gridInitPopStable"));
  sizes.at(1, 1) = first;
  sizes.at(2, 1) = second;
  s.SetGrid(F("gridInitPopStable"), sizes);
  return s;
}

TEST(StableAgeDistribution, SpreadsEachPopulationsSizeOverItsAgesOrChangesNothing) {
  AgeEngine engine;
  clsScenario s = TwoPopulations("100", "40");
  ASSERT_EQ(ApplyStableAgeDistribution(s, 3, "/tmp/work.tpj", engine), std::nullopt);
  EXPECT_EQ(engine.checkedIn, "/tmp/work.tpj {3}");
  EXPECT_EQ(engine.checkInFlag, 0);
  EXPECT_EQ(engine.sizes, (std::vector<int>{100, 40}));
  const Grid& females = s.GetGrid(F("gridInitPopFemale"));
  const Grid& males = s.GetGrid(F("gridInitPopMale"));
  EXPECT_EQ(females.at(1, 1), "25");
  EXPECT_EQ(females.at(1, 3), "0");
  EXPECT_EQ(females.at(1, 4), "0") << "ages the engine does not name have nobody";
  EXPECT_EQ(males.at(1, 1), "50");
  EXPECT_EQ(females.at(2, 2), "10");
  EXPECT_EQ(females.at(0, 1), "Females Age 1") << "headings stay";

  // An engine error, for the second population or at check-in, changes nothing.
  s = TwoPopulations("100", "13");
  const clsScenario before = s;
  EXPECT_EQ(ApplyStableAgeDistribution(s, 1, "w.tpj", engine), "Error: no stable distribution");
  EXPECT_EQ(s, before);
  engine.checkInReply = "Error: scenario 1 has no populations";
  EXPECT_EQ(ApplyStableAgeDistribution(s, 1, "w.tpj", engine), "Error: scenario 1 has no populations");
  EXPECT_EQ(s, before);
}

}  // namespace
}  // namespace tamsic
