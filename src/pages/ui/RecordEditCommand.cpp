#include "pages/ui/RecordEditCommand.h"

#include "pages/ui/InputPages.h"

RecordEditCommand::RecordEditCommand(InputPages& pages, std::size_t scenario, int page, tamsic::clsScenario before,
                                     tamsic::clsScenario after)
    : pages_(pages), scenario_(scenario), page_(page), before_(std::move(before)), after_(std::move(after)) {
  setText(pages.pageTitle(page));
}

void RecordEditCommand::undo() {
  pages_.putBack(scenario_, page_, before_);
  done_ = false;
}

void RecordEditCommand::redo() {
  if (done_) return;
  pages_.putBack(scenario_, page_, after_);
  done_ = true;
}
