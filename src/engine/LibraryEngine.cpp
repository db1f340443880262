#include "engine/Engine.h"
#include "engine/EngineLibrary.h"
#include "engine/TextCodes.h"

namespace tamsic {

namespace {

// Frees the reply's codes through the library that allocated them.
class ReplySlot {
 public:
  explicit ReplySlot(const EngineExports& exports) : exports_(exports) {}
  ~ReplySlot() { exports_.tamsicFreeVariant(&slot_); }
  ReplySlot(const ReplySlot&) = delete;
  ReplySlot& operator=(const ReplySlot&) = delete;

  TamsicVariant* get() { return &slot_; }
  std::string text() const { return CodesToText(slot_); }

 private:
  const EngineExports& exports_;
  TamsicVariant slot_{};
};

template <class Call>
std::string Ask(Call&& call) {
  const EngineExports& exports = EngineLibrary::get().exports;
  ReplySlot reply(exports);
  call(exports, reply.get());
  return reply.text();
}

std::int32_t Count(const std::vector<std::int16_t>& codes) {
  return static_cast<std::int32_t>(codes.size());
}

}  // namespace

std::string LibraryEngine::tamsicsim(const std::string& workFile,
                                     const std::string& bracedScenarios,
                                     const std::string& options) {
  const auto path = TextToCodes(workFile);
  const auto list = TextToCodes(bracedScenarios);
  const auto flags = TextToCodes(options);
  return Ask([&](const EngineExports& e, TamsicVariant* result) {
    e.tamsicsim(result, path.data(), Count(path), 0, 0, list.data(), Count(list), flags.data(),
                Count(flags));
  });
}

std::string LibraryEngine::tcheckin(const std::string& text, std::int32_t flag) {
  const auto codes = TextToCodes(text);
  return Ask([&](const EngineExports& e, TamsicVariant* result) {
    e.tcheckin(result, codes.data(), Count(codes), flag);
  });
}

std::string LibraryEngine::agedist(std::int16_t size) {
  return Ask([&](const EngineExports& e, TamsicVariant* result) { e.agedist(result, size); });
}

std::string LibraryEngine::detGraphValues(const std::string& text, std::int32_t years) {
  const auto codes = TextToCodes(text);
  return Ask([&](const EngineExports& e, TamsicVariant* result) {
    e.detGraphValues(result, codes.data(), Count(codes), years);
  });
}

std::string LibraryEngine::findpolyg(std::int16_t index, const std::array<double, 4>& values) {
  return Ask([&](const EngineExports& e, TamsicVariant* result) {
    e.findpolyg(result, index, values.data());
  });
}

std::string LibraryEngine::testFormula(const std::string& formula) {
  const auto codes = TextToCodes(formula);
  return Ask([&](const EngineExports& e, TamsicVariant* result) {
    e.testFormula(result, codes.data(), Count(codes));
  });
}

std::string LibraryEngine::formulaGraphValues(const std::string& formula,
                                              const GraphRequest& range) {
  const auto codes = TextToCodes(formula);
  return Ask([&](const EngineExports& e, TamsicVariant* result) {
    e.formulaGraphValues(result, codes.data(), Count(codes), range.variable, range.from,
                         range.to, range.points, range.population, range.increment);
  });
}

std::optional<std::string> LibraryEngine::progress() {
  if (EngineLibrary::get().exports.tamsicProgress == nullptr) return std::nullopt;
  return Ask([](const EngineExports& e, TamsicVariant* result) { e.tamsicProgress(result); });
}

bool LibraryEngine::cancel() {
  if (EngineLibrary::get().exports.tamsicCancel == nullptr) return false;
  Ask([](const EngineExports& e, TamsicVariant* result) { e.tamsicCancel(result); });
  return true;
}

std::string LibraryEngine::joinTeam() {
  if (EngineLibrary::get().exports.tamsicTeamJoin == nullptr) return "0;1";
  return Ask([](const EngineExports& e, TamsicVariant* result) { e.tamsicTeamJoin(result); });
}

void LibraryEngine::leaveTeam(const std::string& reason) {
  if (EngineLibrary::get().exports.tamsicTeamLeave == nullptr) return;
  const auto codes = TextToCodes(reason);
  Ask([&](const EngineExports& e, TamsicVariant* result) { e.tamsicTeamLeave(result, codes.data(), Count(codes)); });
}

void LibraryEngine::close() {
  Ask([](const EngineExports& e, TamsicVariant* result) { e.tamsdllclose(result); });
  Ask([](const EngineExports& e, TamsicVariant* result) { e.tamsicWindowClose(result); });
}

}  // namespace tamsic
