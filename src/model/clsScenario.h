#pragma once
// One scenario's inputs while another scenario is on screen. Every stored
// field lives under the member name of the page control that edits it; the
// field table (ScenarioFields.h) says which kind each one is.
#include <string>
#include <string_view>
#include <vector>

#include "model/Grid.h"
#include "model/ScenarioFields.h"

namespace tamsic {

class clsScenario {
 public:
  static constexpr std::size_t kNotePages = 14;
  static constexpr std::size_t kNotesPerPage = 11;

  // An empty record: texts empty, truth values false, check states 0, grids without cells.
  clsScenario();

  const std::string& Text(Field field) const;
  void SetText(Field field, std::string value);
  bool Truth(Field field) const;
  void SetTruth(Field field, bool value);
  int Check(Field field) const;
  void SetCheck(Field field, int state);
  const Grid& GetGrid(Field field) const;
  void SetGrid(Field field, Grid value);

  // A scalar field in the form the project file holds it: the text, "True" or
  // "False", or the check state as an integer. Grids have no such form.
  std::string ScalarText(Field field) const;
  // Reads a scalar back from that form; unreadable truth values and check
  // states count as false and 0.
  void SetScalarText(Field field, std::string_view text);

  const Grid& Notes() const { return GetGrid(F("Notes")); }
  void SetNotes(Grid notes) { SetGrid(F("Notes"), std::move(notes)); }
  // Replaces the notes by an empty table of 14 pages x 11 entries.
  void ResetNotes();

  // Kept in memory only, never in the project file.
  int CatastSelect = 0;
  bool usingformula = false;

  bool operator==(const clsScenario&) const = default;

 private:
  struct Slot {
    std::string text;
    int number = 0;  // truth values as 0/1, check states as typed
    Grid grid;
    bool operator==(const Slot&) const = default;
  };
  const Slot& slot(Field field, FieldKind kind) const;
  Slot& slot(Field field, FieldKind kind);

  std::vector<Slot> slots_;
};

}  // namespace tamsic
