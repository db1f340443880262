#include "sim/RunDate.h"

#include <charconv>
#include <cstdlib>
#include <ctime>
#include <string_view>

#include "sim/SimError.h"

namespace tamsic::sim {

std::string RunDate() {
  std::time_t when = std::time(nullptr);
  std::tm parts{};
  if (const char* fixed = std::getenv("SOURCE_DATE_EPOCH")) {
    const std::string_view text(fixed);
    long long seconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    if (error != std::errc() || end != text.data() + text.size() || text.empty() || seconds < 0)
      throw SimError("SOURCE_DATE_EPOCH is \"" + std::string(text) + "\", not a number of seconds since 1970");
    when = static_cast<std::time_t>(seconds);
    gmtime_r(&when, &parts);
  } else {
    localtime_r(&when, &parts);
  }
  char text[32];
  std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", &parts);
  return text;
}

}  // namespace tamsic::sim
