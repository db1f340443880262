#include "RunTeam.h"

#include "engine/EngineLibrary.h"
#include "files/TextCodec.h"

namespace tamsic {

RunTeam::RunTeam(LibraryEngine& engine, StderrMessageBox& box) : engine_(engine) {
  std::string reply;
  try {
    reply = engine_.joinTeam();
  } catch (const EngineUnavailable&) {
    return;  // alone; the run says that the library is missing
  }
  if (reply.starts_with("Error")) {
    error_ = reply;
    return;
  }
  rank_ = std::stoi(reply.substr(0, reply.find(';')));
  size_ = std::stoi(reply.substr(reply.find(';') + 1));
  if (rank_ != 0) box.silence();
}

RunTeam::~RunTeam() {
  try {
    engine_.leaveTeam(Utf8ToCp1252(reason_));
  } catch (...) {
    // The library could not be loaded: there was no team to leave.
  }
}

}  // namespace tamsic
