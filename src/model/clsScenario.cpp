#include "model/clsScenario.h"

#include <stdexcept>
#include <utility>

#include "model/TextNumbers.h"

namespace tamsic {

clsScenario::clsScenario() : slots_(kFieldCount) {}

const clsScenario::Slot& clsScenario::slot(Field field, FieldKind kind) const {
  const FieldDescriptor& d = Describe(field);
  if (d.kind != kind)
    throw std::logic_error("scenario field " + std::string(d.member) + " used as the wrong kind");
  return slots_[field.index];
}

clsScenario::Slot& clsScenario::slot(Field field, FieldKind kind) {
  return const_cast<Slot&>(std::as_const(*this).slot(field, kind));
}

const std::string& clsScenario::Text(Field field) const { return slot(field, FieldKind::Text).text; }
void clsScenario::SetText(Field field, std::string value) { slot(field, FieldKind::Text).text = std::move(value); }
bool clsScenario::Truth(Field field) const { return slot(field, FieldKind::Truth).number != 0; }
void clsScenario::SetTruth(Field field, bool value) { slot(field, FieldKind::Truth).number = value ? 1 : 0; }
int clsScenario::Check(Field field) const { return slot(field, FieldKind::Check).number; }
void clsScenario::SetCheck(Field field, int state) { slot(field, FieldKind::Check).number = state; }
const Grid& clsScenario::GetGrid(Field field) const { return slot(field, FieldKind::Grid).grid; }
void clsScenario::SetGrid(Field field, Grid value) { slot(field, FieldKind::Grid).grid = std::move(value); }

std::string clsScenario::ScalarText(Field field) const {
  switch (Describe(field).kind) {
    case FieldKind::Text: return Text(field);
    case FieldKind::Truth: return Truth(field) ? "True" : "False";
    case FieldKind::Check: return std::to_string(Check(field));
    case FieldKind::Grid: break;
  }
  throw std::logic_error("grid field " + std::string(Describe(field).member) + " has no scalar form");
}

void clsScenario::SetScalarText(Field field, std::string_view text) {
  switch (Describe(field).kind) {
    case FieldKind::Text: SetText(field, std::string(text)); return;
    case FieldKind::Truth: SetTruth(field, TextToTruth(text)); return;
    case FieldKind::Check: SetCheck(field, LeadingInt(text)); return;
    case FieldKind::Grid: break;
  }
  throw std::logic_error("grid field " + std::string(Describe(field).member) + " has no scalar form");
}

void clsScenario::ResetNotes() { SetNotes(Grid(kNotePages, kNotesPerPage)); }

}  // namespace tamsic
