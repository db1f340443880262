#include "engine/RunList.h"

#include <algorithm>
#include <charconv>

#include "model/TextSplit.h"

namespace tamsic {

RunList BuildRunList(const std::vector<RunListEntry>& entries) {
  RunList list;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (!entries[i].checked) continue;
    list.names += Trim(entries[i].name);
    if (i + 1 < entries.size()) list.names += ", ";
    ++list.count;
    list.checked.push_back(i);
  }
  return list;
}

namespace {

std::optional<long> Number(std::string_view text) {
  text = Trim(text);
  long value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

}  // namespace

std::optional<RunProgress> ParseProgress(const std::string& reply) {
  const auto parts = Split(reply, ';');
  if (parts.size() != 2) return std::nullopt;
  const auto done = Number(parts[0]);
  const auto total = Number(parts[1]);
  if (!done || !total || *total <= 0 || *done < 0) return std::nullopt;
  return RunProgress{*done, *total};
}

std::optional<double> SecondsLeft(const RunProgress& progress, double secondsSoFar) {
  if (progress.done <= 0) return std::nullopt;
  const long left = std::max(0L, progress.total - progress.done);
  return secondsSoFar * static_cast<double>(left) / static_cast<double>(progress.done);
}

}  // namespace tamsic
