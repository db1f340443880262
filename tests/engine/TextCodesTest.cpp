#include <gtest/gtest.h>

#include "engine/TextCodes.h"

namespace tamsic {
namespace {

TEST(TextCodes, EveryByteCrossesBothWays) {
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  auto codes = TextToCodes(all);
  ASSERT_EQ(codes.size(), 255u);
  EXPECT_EQ(codes[0], 1);
  EXPECT_EQ(codes[0xE9 - 1], 0xE9);  // é in Windows-1252, positive as a 16-bit code
  EXPECT_EQ(codes.back(), 255);
  EXPECT_EQ(CodesToText(TamsicVariant{codes.data(), static_cast<std::int32_t>(codes.size())}), all);

  EXPECT_EQ(TextToCodes(""), std::vector<std::int16_t>{0}) << "empty text is one zero code";
  EXPECT_EQ(CodesToText(TamsicVariant{nullptr, 0}), "");
  std::int16_t outside[] = {72, -23, 300, 105};
  EXPECT_EQ(CodesToText(TamsicVariant{outside, 4}), "H??i") << "codes outside one byte read as question marks";
}

}  // namespace
}  // namespace tamsic
