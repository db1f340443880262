// Reading a studbook: the heading, one animal a line, parents that exist and
// fit their role, no animal its own ancestor. The kinships of the living
// come from the pedigree by the tabular method, on the same kinship matrix
// the simulation keeps: animals are added parents first, and a dead
// animal's row is given up after its last offspring, so the matrix holds only
// the animals whose kinships are still needed.
#include "sim/Studbook.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <unordered_map>

#include "model/TextNumbers.h"
#include "sim/Individual.h"
#include "sim/Kinship.h"

namespace tamsic::sim {

namespace {

constexpr std::array<const char*, 7> kColumns = {"ID", "Sex", "Sire", "Dam", "Age", "Alive", "Population"};
// Animals whose kinships are needed at once (the living and the dead whose
// offspring are still to come): a matrix of 64 MB.
constexpr std::uint32_t kMostAtOnce = 4096;

enum class Sex { Female, Male, Unknown };

struct Row {
  std::string id;
  int line = 0;
  Sex sex = Sex::Unknown;
  std::string sire, dam;
  bool alive = false;
  int age = 0;
  int population = 0;
  int sireRow = -1, damRow = -1;
};

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

bool Unknown(const std::string& parent) {
  const std::string text = Lower(parent);
  return text == "unk" || text == "0" || text == "-";
}

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

void CheckHeading(const InputFile& file) {
  if (file.lines.empty()) file.fail("it lists no animals");
  const InputLine& heading = file.lines.front();
  bool fits = heading.fields.size() == kColumns.size();
  for (std::size_t c = 0; fits && c < kColumns.size(); ++c) fits = Lower(heading.fields[c]) == Lower(kColumns[c]);
  if (!fits) file.fail(heading.number, "the heading must name the columns ID Sex Sire Dam Age Alive Population");
}

// A whole number of at least 0, or -1 for "-".
int Whole(const InputFile& file, const InputLine& line, std::size_t column) {
  const std::string& text = line.fields[column];
  if (text == "-") return -1;
  const auto value = ExactNumber(text);
  if (!value || *value < 0 || *value != std::floor(*value) || *value > 1e6)
    file.fail(line.number, std::string(kColumns[column]) + " " + Quoted(text) + " is not a whole number (or -)");
  return static_cast<int>(*value);
}

Row ReadRow(const InputFile& file, const InputLine& line, int populations, int maxAge) {
  if (line.fields.size() != kColumns.size())
    file.fail(line.number, std::to_string(line.fields.size()) + " fields; an animal needs 7: " +
                               "ID Sex Sire Dam Age Alive Population");
  Row row;
  row.line = line.number;
  row.id = line.fields[0];
  if (Unknown(row.id)) file.fail(line.number, Quoted(row.id) + " marks an unknown parent and cannot be an ID");
  const std::string sex = Lower(line.fields[1]);
  if (sex == "m" || sex == "male") row.sex = Sex::Male;
  else if (sex == "f" || sex == "female") row.sex = Sex::Female;
  else if (sex != "u" && sex != "unknown")
    file.fail(line.number, "the sex " + Quoted(line.fields[1]) + " is not M, F or U");
  row.sire = line.fields[2];
  row.dam = line.fields[3];
  const std::string alive = Lower(line.fields[5]);
  if (alive == "1" || alive == "y" || alive == "yes" || alive == "true") row.alive = true;
  else if (alive != "0" && alive != "n" && alive != "no" && alive != "false")
    file.fail(line.number, "Alive " + Quoted(line.fields[5]) + " is not 1 or 0");
  row.age = Whole(file, line, 4);
  row.population = Whole(file, line, 6);
  if (!row.alive) return row;
  if (row.age < 0) file.fail(line.number, "a living animal needs its age");
  if (row.age > maxAge)
    file.fail(line.number, "the age " + std::to_string(row.age) + " is above the maximum age " +
                               std::to_string(maxAge) + " (AgeRepro)");
  if (row.population < 1 || row.population > populations)
    file.fail(line.number, "a living animal needs a population from 1 to " + std::to_string(populations));
  --row.population;
  return row;
}

// Finds each parent's row and checks that it can have that role.
void LinkParents(const InputFile& file, std::vector<Row>& rows, bool sexual) {
  std::unordered_map<std::string, int> byId;
  for (std::size_t r = 0; r < rows.size(); ++r) {
    const auto [at, added] = byId.emplace(rows[r].id, static_cast<int>(r));
    if (!added)
      file.fail(rows[r].line, "the ID " + Quoted(rows[r].id) + " is listed already on line " +
                                  std::to_string(rows[static_cast<std::size_t>(at->second)].line));
  }
  std::vector<int> asSire(rows.size(), 0), asDam(rows.size(), 0);  // first line naming it so
  for (Row& row : rows) {
    for (const bool isSire : {true, false}) {
      const std::string& parent = isSire ? row.sire : row.dam;
      if (Unknown(parent)) continue;
      const auto found = byId.find(parent);
      if (found == byId.end())
        file.fail(row.line, std::string(isSire ? "the sire " : "the dam ") + Quoted(parent) + " is not listed");
      const auto p = static_cast<std::size_t>(found->second);
      (isSire ? row.sireRow : row.damRow) = found->second;
      if (!sexual) continue;
      int& role = isSire ? asSire[p] : asDam[p];
      if (role == 0) role = row.line;
      if (asSire[p] && asDam[p])
        file.fail(row.line, Quoted(parent) + " is a sire on line " + std::to_string(asSire[p]) + " and a dam on line " +
                                std::to_string(asDam[p]));
      // A sex of U takes the sex of the animal's role; the check above keeps the roles apart.
      if (rows[p].sex == (isSire ? Sex::Female : Sex::Male))
        file.fail(row.line,
                  Quoted(parent) + (isSire ? " is a female and cannot be a sire" : " is a male and cannot be a dam"));
      rows[p].sex = isSire ? Sex::Male : Sex::Female;
    }
  }
  for (const Row& row : rows)
    if (sexual && row.alive && row.sex == Sex::Unknown) file.fail(row.line, "a living animal needs the sex M or F");
}

// An animal with one known parent gets an unknown, unrelated founder for the other.
void AddUnknownParents(std::vector<Row>& rows) {
  const std::size_t listed = rows.size();
  for (std::size_t r = 0; r < listed; ++r) {
    if ((rows[r].sireRow < 0) == (rows[r].damRow < 0)) continue;
    Row parent;
    parent.line = rows[r].line;
    parent.sex = rows[r].sireRow < 0 ? Sex::Male : Sex::Female;
    (rows[r].sireRow < 0 ? rows[r].sireRow : rows[r].damRow) = static_cast<int>(rows.size());
    rows.push_back(parent);
  }
}

// Rows with parents before offspring, in the file's order where the pedigree allows.
std::vector<int> PedigreeOrder(const InputFile& file, const std::vector<Row>& rows) {
  std::vector<int> order, placedAt(rows.size(), -1);
  while (order.size() < rows.size()) {
    const std::size_t before = order.size();
    for (std::size_t r = 0; r < rows.size(); ++r) {
      if (placedAt[r] >= 0) continue;
      const int sire = rows[r].sireRow, dam = rows[r].damRow;
      if ((sire >= 0 && placedAt[static_cast<std::size_t>(sire)] < 0) ||
          (dam >= 0 && placedAt[static_cast<std::size_t>(dam)] < 0))
        continue;
      placedAt[r] = static_cast<int>(order.size());
      order.push_back(static_cast<int>(r));
    }
    if (order.size() == before) {
      const auto stuck = std::find(placedAt.begin(), placedAt.end(), -1) - placedAt.begin();
      file.fail(rows[static_cast<std::size_t>(stuck)].line,
                "the animal " + Quoted(rows[static_cast<std::size_t>(stuck)].id) + " is its own ancestor");
    }
  }
  return order;
}

Studbook Arrange(const std::vector<Row>& rows, const std::vector<int>& order) {
  std::vector<int> indexOf(rows.size());
  for (std::size_t k = 0; k < order.size(); ++k) indexOf[static_cast<std::size_t>(order[k])] = static_cast<int>(k);
  Studbook book;
  for (const int r : order) {
    const Row& row = rows[static_cast<std::size_t>(r)];
    StudbookAnimal a;
    a.id = row.id;
    a.line = row.line;
    a.dam = row.damRow < 0 ? -1 : indexOf[static_cast<std::size_t>(row.damRow)];
    a.sire = row.sireRow < 0 ? -1 : indexOf[static_cast<std::size_t>(row.sireRow)];
    a.alive = row.alive;
    a.sex = row.sex == Sex::Male ? kMale : kFemale;
    a.age = row.age;
    a.population = row.population;
    const int self = static_cast<int>(book.animals.size());
    for (const int parent : {a.dam, a.sire})
      if (parent >= 0) book.animals[static_cast<std::size_t>(parent)].lastChild = self;
    book.animals.push_back(a);
  }
  for (std::size_t r = 0; r < rows.size(); ++r)
    if (rows[r].alive) book.living.push_back(indexOf[r]);
  return book;
}

// The tabular method on the kinship matrix, slots reused as animals are given up.
void ComputeKinships(const InputFile& file, Studbook& book) {
  KinshipMatrix matrix;
  matrix.reset(true, kMostAtOnce);
  std::vector<std::uint32_t> slotOf(book.animals.size()), freeSlots;
  std::uint32_t nextSlot = 0;
  // A dead parent is given up after its last offspring.
  auto release = [&](int parent, std::size_t child) {
    const StudbookAnimal& p = book.animals[static_cast<std::size_t>(parent)];
    if (!p.alive && p.lastChild == static_cast<int>(child))
      freeSlots.push_back(slotOf[static_cast<std::size_t>(parent)]);
  };
  for (std::size_t k = 0; k < book.animals.size(); ++k) {
    StudbookAnimal& a = book.animals[k];
    std::uint32_t slot = nextSlot;
    if (freeSlots.empty()) ++nextSlot;
    else slot = freeSlots.back(), freeSlots.pop_back();
    slotOf[k] = slot;
    if (book.founder(a)) matrix.addFounder(slot);
    else
      a.inbreeding = matrix.addChild(slot, slotOf[static_cast<std::size_t>(a.dam)],
                                     slotOf[static_cast<std::size_t>(a.sire)]);
    matrix.settle();  // its offspring may come next
    if (!matrix.exact())
      file.fail(a.line, "the pedigree needs the kinships of more than " + std::to_string(kMostAtOnce) +
                            " animals at once; a studbook this large cannot be imported");
    if (a.dam >= 0) release(a.dam, k);
    if (a.sire >= 0 && a.sire != a.dam) release(a.sire, k);
    if (!a.alive && a.lastChild < 0) freeSlots.push_back(slot);
  }
  const std::size_t n = book.living.size();
  book.kinship.resize(n * n);
  for (std::size_t i = 0; i < n; ++i)
    for (std::size_t j = 0; j < n; ++j)
      book.kinship[i * n + j] = matrix.at(slotOf[static_cast<std::size_t>(book.living[i])],
                                          slotOf[static_cast<std::size_t>(book.living[j])]);
}

}  // namespace

bool Studbook::populates(int population) const {
  return std::any_of(living.begin(), living.end(),
                     [&](int a) { return animals[static_cast<std::size_t>(a)].population == population; });
}

Studbook ReadStudbook(const InputFile& file, int populations, int maxAge, bool sexual) {
  CheckHeading(file);
  std::vector<Row> rows;
  for (std::size_t l = 1; l < file.lines.size(); ++l)
    rows.push_back(ReadRow(file, file.lines[l], populations, maxAge));
  LinkParents(file, rows, sexual);
  const auto living = std::count_if(rows.begin(), rows.end(), [](const Row& r) { return r.alive; });
  if (living == 0) file.fail("it lists no living animal");
  if (living > static_cast<long>(kExactKinshipSlots))
    file.fail("it lists " + std::to_string(living) + " living animals; at most " +
              std::to_string(kExactKinshipSlots) + " can be imported");
  AddUnknownParents(rows);
  Studbook book = Arrange(rows, PedigreeOrder(file, rows));
  ComputeKinships(file, book);
  return book;
}

}  // namespace tamsic::sim
