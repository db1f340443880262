#pragma once
// One accepted edit of the input pages, kept as the scenario record before
// and after it. Undoing or redoing puts a whole record back, which covers
// every kind of edit alike: a cell, a box, a preset, a helper command, and the
// grids re-shaped by a count.
#include <QUndoCommand>
#include <cstddef>

#include "model/clsScenario.h"

class InputPages;

class RecordEditCommand : public QUndoCommand {
 public:
  RecordEditCommand(InputPages& pages, std::size_t scenario, int page, tamsic::clsScenario before,
                    tamsic::clsScenario after);

  void undo() override;
  void redo() override;

 private:
  InputPages& pages_;
  std::size_t scenario_;
  int page_;
  tamsic::clsScenario before_;
  tamsic::clsScenario after_;
  bool done_ = true;  // pushed after the edit was already made
};
