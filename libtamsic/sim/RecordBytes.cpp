#include "sim/RecordBytes.h"

#include <cstring>
#include <type_traits>

#include "sim/SimError.h"

namespace tamsic::sim {

namespace {

class Writer {
 public:
  template <class T>
  void value(const T& v) {
    static_assert(std::is_trivially_copyable_v<T>);
    bytes_.append(reinterpret_cast<const char*>(&v), sizeof v);
  }
  template <class T>
  void values(const std::vector<T>& v) {
    static_assert(std::is_trivially_copyable_v<T>);
    value(static_cast<std::uint64_t>(v.size()));
    bytes_.append(reinterpret_cast<const char*>(v.data()), v.size() * sizeof(T));
  }
  std::string take() { return std::move(bytes_); }

 private:
  std::string bytes_;
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}
  template <class T>
  void value(T& v) {
    take(&v, sizeof v);
  }
  template <class T>
  void values(std::vector<T>& v) {
    std::uint64_t count = 0;
    value(count);
    if (count > bytes_.size() / sizeof(T)) throw SimError("a record from another process is cut short");
    v.resize(static_cast<std::size_t>(count));
    take(v.data(), v.size() * sizeof(T));
  }
  bool done() const { return bytes_.empty(); }

 private:
  void take(void* to, std::size_t size) {
    if (size > bytes_.size()) throw SimError("a record from another process is cut short");
    if (size > 0) std::memcpy(to, bytes_.data(), size);
    bytes_.remove_prefix(size);
  }
  std::string_view bytes_;
};

// The same order for both ways: Stream is a Writer with a const journal or a Reader with one to fill.
template <class Stream, class Journal>
void JournalFields(Stream& s, Journal& j) {
  s.values(j.living);
  s.values(j.livingStates);
  s.values(j.created);
  s.values(j.census);
  s.value(j.genotypes.loci);
  s.values(j.genotypes.population);
  s.values(j.genotypes.id);
  s.values(j.genotypes.alleles);
}

}  // namespace

// As the journal's: one order for packing and unpacking.
template <class Stream, class Record>
void RecordFields(Stream& s, Record& record) {
  s.value(record.blocks_);
  s.value(record.years_);
  s.value(record.userVariables_);
  s.values(record.cells_);
  s.values(record.userValues_);
  JournalFields(s, record.journal);
}

std::string Pack(const IterationRecord& record) {
  Writer out;
  RecordFields(out, record);
  return out.take();
}

void Unpack(std::string_view bytes, IterationRecord& record) {
  Reader in(bytes);
  RecordFields(in, record);
  if (!in.done()) throw SimError("a record from another process is longer than one");
}

}  // namespace tamsic::sim
