#include "model/ScenarioFields.h"

namespace tamsic {

namespace {

template <typename Name>
std::optional<Field> Find(Name name) {
  for (std::size_t i = 0; i < kFieldCount; ++i)
    if (name(detail::kFieldTable[i])) return Field{i};
  return std::nullopt;
}

}  // namespace

std::optional<Field> FieldByMember(std::string_view member) {
  return Find([member](const FieldDescriptor& d) { return d.member == member; });
}

std::optional<Field> FieldByKey(std::string_view key) {
  return Find([key](const FieldDescriptor& d) { return d.key == key; });
}

}  // namespace tamsic
