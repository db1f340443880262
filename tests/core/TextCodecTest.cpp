#include <gtest/gtest.h>

#include "files/TextCodec.h"

namespace tamsic {
namespace {

TEST(TextCodec, WindowsCodePageAndUtf8) {
  const std::string bytes = "Gr\xFC\xDF" "e \x80 \x9F \x81";
  const std::string utf8 = Cp1252ToUtf8(bytes);
  EXPECT_EQ(utf8, "Grüße € Ÿ \xC2\x81");
  EXPECT_EQ(Utf8ToCp1252(utf8), bytes);
  EXPECT_EQ(Utf8ToCp1252("日本"), "??");
  EXPECT_EQ(Utf8ToCp1252("a\xC3"), "a?") << "a cut sequence";
}

}  // namespace
}  // namespace tamsic
