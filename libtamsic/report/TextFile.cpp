#include "report/TextFile.h"

#include <charconv>
#include <cmath>

#include "sim/SimError.h"

namespace tamsic::report {

std::string Num(double value) {
  if (!std::isfinite(value)) return "0";
  if (value == 0.0) return "0";  // no "-0"
  char buffer[32];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 6);
  return std::string(buffer, result.ptr);
}

TextFile::TextFile(const std::string& path) : path_(path), out_(path, std::ios::binary | std::ios::trunc) {
  if (!out_) throw sim::SimError("cannot write the file " + path);
}

void TextFile::close() {
  out_.close();
  if (!out_) throw sim::SimError("writing the file " + path_ + " failed");
}

}  // namespace tamsic::report
