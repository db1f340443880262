#include <gtest/gtest.h>

#include <set>

#include "model/ScenarioCollection.h"
#include "model/TextNumbers.h"

namespace tamsic {
namespace {

TEST(ScenarioFields, TableNamesEveryFieldOnce) {
  std::set<std::string_view> members, keys;
  int grids = 0;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const FieldDescriptor& d = Describe(Field{i});
    EXPECT_TRUE(members.insert(d.member).second) << d.member;
    EXPECT_TRUE(keys.insert(d.key).second) << d.key;
    grids += d.kind == FieldKind::Grid && d.member != "Notes";
  }
  EXPECT_EQ(grids, 26);
  EXPECT_EQ(FieldByMember("gridMortFemales"), F("gridMortFemales"));
  EXPECT_EQ(FieldByKey("MortFemales"), F("gridMortFemales"));
  EXPECT_FALSE(FieldByMember("MortFemales").has_value());
}

TEST(ScenarioRecord, StartsEmptyAndKeepsKinds) {
  clsScenario scenario;
  EXPECT_EQ(scenario.Text(F("txtNumIter")), "");
  EXPECT_FALSE(scenario.Truth(F("optExtinctDef_0")));
  EXPECT_EQ(scenario.Check(F("chkDepress")), 0);
  EXPECT_TRUE(scenario.GetGrid(F("gridMortMales")).empty());
  EXPECT_THROW(scenario.Truth(F("txtNumIter")), std::logic_error);
  EXPECT_THROW(scenario.ScalarText(F("gridMortMales")), std::logic_error);

  scenario.SetScalarText(F("optMPHLQ_1"), "true");
  EXPECT_EQ(scenario.ScalarText(F("optMPHLQ_1")), "True");
  scenario.SetScalarText(F("optMPHLQ_1"), "nonsense");
  EXPECT_EQ(scenario.ScalarText(F("optMPHLQ_1")), "False");
  scenario.SetScalarText(F("chkDepress"), "99999999999999");
  EXPECT_EQ(scenario.Check(F("chkDepress")), 2147483647);
}

TEST(ScenarioCollection, AddressedFromOne) {
  ScenarioCollection scenarios;
  clsScenario a, b;
  a.SetText(F("txtSceneName"), "Baseline");
  b.SetText(F("txtSceneName"), "Harvest");
  EXPECT_EQ(scenarios.Add(a), 1u);
  EXPECT_EQ(scenarios.Add(b), 2u);
  EXPECT_EQ(scenarios.Find("HARVEST"), 2u);
  EXPECT_EQ(scenarios.Find("none"), 0u);
  EXPECT_THROW(scenarios.Item(0), std::out_of_range);
  EXPECT_THROW(scenarios.Item(3), std::out_of_range);
  scenarios.Insert(1, b);
  EXPECT_EQ(scenarios.Item(1).Text(F("txtSceneName")), "Harvest");
  scenarios.Remove(1);
  EXPECT_EQ(scenarios.Item(1).Text(F("txtSceneName")), "Baseline");
}

TEST(TextNumbers, ReadLikeTheFileAlwaysWasRead) {
  EXPECT_EQ(LeadingNumber("12abc"), 12);
  EXPECT_EQ(LeadingNumber(" -1.5e2 "), -150);
  EXPECT_EQ(LeadingNumber("+3"), 3);
  EXPECT_EQ(LeadingNumber("x"), 0);
  EXPECT_EQ(LeadingNumber("inf"), 0);
  EXPECT_FALSE(ExactNumber("12abc").has_value());
  EXPECT_FALSE(ExactNumber("").has_value());
  EXPECT_EQ(ExactNumber(" 2.5 "), 2.5);
  EXPECT_EQ(NumberToText(0.1), "0.1");
  EXPECT_EQ(NumberToText(2500), "2500");
}

}  // namespace
}  // namespace tamsic
