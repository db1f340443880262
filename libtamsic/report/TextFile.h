#pragma once
// The engine's text files: Windows-1252 bytes, CR LF line ends, numbers in
// the shortest form that reads back the same (never a locale's comma).
#include <fstream>
#include <string>
#include <string_view>

namespace tamsic::report {

// 6 significant digits: "0.5", "812.4", "1e-07".
std::string Num(double value);

class TextFile {
 public:
  // Throws sim::SimError naming the file when it cannot be created.
  explicit TextFile(const std::string& path);
  void line(std::string_view text = {}) { out_ << text << "\r\n"; }
  // Throws sim::SimError when a write failed (a full disk).
  void close();

 private:
  std::string path_;
  std::ofstream out_;
};

}  // namespace tamsic::report
