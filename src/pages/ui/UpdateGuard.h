#pragma once
// Marks the time a page spends putting values into its own controls, so that
// the change signals those controls send back are not taken for user edits.

class UpdateGuard {
 public:
  explicit UpdateGuard(bool& updating) : updating_(updating), previous_(updating) { updating_ = true; }
  ~UpdateGuard() { updating_ = previous_; }
  UpdateGuard(const UpdateGuard&) = delete;
  UpdateGuard& operator=(const UpdateGuard&) = delete;

 private:
  bool& updating_;
  bool previous_;
};
