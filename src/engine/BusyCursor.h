#pragma once
// The hourglass shown while the engine works. The GUI implements it with its
// busy cursor; the command line and tests with nothing or a recorder.
namespace tamsic {

class IBusyCursor {
 public:
  virtual ~IBusyCursor() = default;
  virtual void setBusy(bool busy) = 0;
};

// Busy for the life of the scope, restored however the scope is left.
class BusyScope {
 public:
  explicit BusyScope(IBusyCursor& cursor) : cursor_(cursor) { cursor_.setBusy(true); }
  ~BusyScope() { cursor_.setBusy(false); }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

 private:
  IBusyCursor& cursor_;
};

}  // namespace tamsic
