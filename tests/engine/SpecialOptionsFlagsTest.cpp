#include <gtest/gtest.h>

#include "engine/SpecialOptionsFlags.h"

namespace tamsic {
namespace {

TEST(SpecialOptionsFlags, CodesValuesAndExtraCodes) {
  SpecialOptions options;
  EXPECT_EQ(Flags(options), "");
  options.checked[0] = 1;
  options.checked[6] = 1;
  options.option6Text = " 5 ";
  options.undocumented = "Q";
  EXPECT_EQ(Flags(options), "S;Y5;Q");
  // A value option with an empty box gives its letter alone.
  options.option6Text = "";
  EXPECT_EQ(Flags(options), "S;Y;Q");
}

TEST(SpecialOptionsFlags, EveryCodeInIndexOrder) {
  SpecialOptions options;
  options.checked.fill(1);
  options.option1Text = "80";
  options.option8Text = "2000";
  EXPECT_EQ(Flags(options), "S;T80;X;M;B;A;Y;R;W2000;N");
  // A check state other than 1 (a greyed box) is not a chosen option.
  options.checked.fill(0);
  options.checked[2] = 2;
  EXPECT_EQ(Flags(options), "");
}

TEST(SpecialOptionsFlags, OnlyExtraCodesHaveNoLeadingSeparator) {
  SpecialOptions options;
  options.undocumented = "  SEED42 ";
  EXPECT_EQ(Flags(options), "SEED42");
}

}  // namespace
}  // namespace tamsic
