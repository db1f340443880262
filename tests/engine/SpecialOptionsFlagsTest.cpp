#include <gtest/gtest.h>

#include "engine/SpecialOptionsFlags.h"

namespace tamsic {
namespace {

TEST(SpecialOptionsFlags, CodesInIndexOrderWithValuesAndExtraCodes) {
  EXPECT_EQ(Flags(SpecialOptions{}), "");
  SpecialOptions options{.checked = {1, 0, 0, 0, 0, 0, 1}, .option1Text = "", .option6Text = " 5 ",
                         .option8Text = "", .undocumented = "Q"};
  EXPECT_EQ(Flags(options), "S;Y5;Q");
  // A value option with an empty box gives its letter alone.
  options.option6Text.clear();
  EXPECT_EQ(Flags(options), "S;Y;Q");
  // A check state other than 1 (a greyed box) is not a chosen option.
  options.checked = {0, 0, 2};
  options.undocumented = "  SEED42 ";
  EXPECT_EQ(Flags(options), "SEED42") << "extra codes alone have no leading separator";

  SpecialOptions every{
      .checked = {}, .option1Text = "80", .option6Text = "", .option8Text = "2000", .undocumented = ""};
  every.checked.fill(1);
  EXPECT_EQ(Flags(every), "S;T80;X;M;B;A;Y;R;W2000;N");
}

}  // namespace
}  // namespace tamsic
