#include "notes/ReportHtml.h"

#include <algorithm>

#include "files/TextCodec.h"
#include "model/GridLayouts.h"
#include "model/HeadingWords.h"
#include "model/ScenarioShape.h"
#include "model/TextSplit.h"

namespace tamsic {

namespace {

constexpr int kYes = 7030;
constexpr int kNo = 7031;
constexpr int kPopulation = 207;
constexpr int kExtinction = 12;
constexpr int kMatingSystem = 423;
constexpr int kMortalityTitle = 600;

using Row = std::vector<std::string>;

std::string Cell(std::string_view tag, std::string_view utf8) {
  return "<" + std::string(tag) + ">" + HtmlEscaped(utf8) + "</" + std::string(tag) + ">";
}

// Rows of cells; the first row, and the first cell of each row, are headings.
// A row of one cell titles the rows below it across the whole table.
std::string HtmlTableOf(const std::vector<Row>& rows, bool headingRow) {
  std::size_t width = 0;
  for (const Row& row : rows) width = std::max(width, row.size());
  std::string html = "<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">";
  for (std::size_t r = 0; r < rows.size(); ++r) {
    html += "<tr>";
    if (rows[r].size() == 1 && width > 1)
      html += "<th colspan=\"" + std::to_string(width) + "\" align=\"left\">" + HtmlEscaped(rows[r][0]) + "</th>";
    else
      for (std::size_t c = 0; c < rows[r].size(); ++c) {
        const bool heading = (headingRow && r == 0) || c == 0;
        html += heading ? "<th align=\"left\">" + HtmlEscaped(rows[r][c]) + "</th>" : Cell("td", rows[r][c]);
      }
    html += "</tr>";
  }
  return html + "</table>";
}

class ScenarioTables {
 public:
  ScenarioTables(const clsScenario& record, const IStringTable& strings)
      : record_(record), strings_(strings), counts_(CountsOf(record)) {}

  std::vector<Row> settings() const {
    std::vector<Row> rows;
    for (const Field field : {F("txtNumIter"), F("txtNumYear"), F("txtNumDays")}) rows.push_back(scalar(field));
    std::string extinction = caption(F("optExtinctDef_0"));
    if (record_.Truth(F("optExtinctDef_1")))
      extinction = caption(F("optExtinctDef_1")) + ": " + value(F("txtExtinctN"));
    rows.push_back({strings_.text(kExtinction), extinction});
    rows.push_back(scalar(F("txtNumPop")));
    rows.push_back(check(F("chkDepress")));
    if (record_.Check(F("chkDepress")) != 0) {
      rows.push_back(scalar(F("txtLethalEquiv")));
      rows.push_back(scalar(F("txtPercentLethal")));
    }
    rows.push_back(check(F("chkEVConcord")));
    if (counts_.populations.size() > 1) rows.push_back(scalar(F("txtEV")));
    rows.push_back(scalar(F("txtNumCatast")));
    for (const Field option : OptionGroupOf(F("optMPHLQ_0")))
      if (record_.Truth(option)) rows.push_back({strings_.text(kMatingSystem), caption(option)});
    for (const Field field : {F("txtAgeReproF"), F("txtAgeReproM"), F("txtMaxAgeRepro"), F("txtMaxLitters"),
                              F("txtMaxProgeny"), F("txtSexRatio")})
      rows.push_back(scalar(field));
    return rows;
  }

  // A heading row of the populations, then per grid a title row and its lines.
  std::vector<Row> rates() const {
    Row heading{strings_.text(kPopulation)};
    for (const std::string& label : counts_.populations) heading.push_back(Cp1252ToUtf8(label));
    std::vector<Row> rows{heading};
    std::vector<Field> grids = {F("gridRepRates1"), F("gridMortFemales"), F("gridMortMales")};
    if (counts_.catastrophes > 0) grids.insert(grids.end(), {F("gridCatastrophes1"), F("gridCatastrophes2")});
    grids.insert(grids.end(), {F("gridInitPopStable"), F("gridCarryingCap1")});
    for (const Field grid : grids) {
      rows.push_back({title(grid)});
      for (Row& line : linesOf(grid)) rows.push_back(std::move(line));
    }
    return rows;
  }

 private:
  std::string caption(Field field) const { return strings_.text(Describe(field).input.caption); }
  std::string value(Field field) const { return Cp1252ToUtf8(Trim(record_.Text(field))); }
  Row scalar(Field field) const { return {caption(field), value(field)}; }
  Row check(Field field) const { return {caption(field), strings_.text(record_.Check(field) != 0 ? kYes : kNo)}; }

  // Mortality grids are titled by the sex alone; the page's title says what they hold.
  std::string title(Field grid) const {
    if (grid == F("gridMortFemales") || grid == F("gridMortMales"))
      return strings_.text(kMortalityTitle) + " - " + caption(grid);
    return caption(grid);
  }

  std::string heading(const std::string& stored) const {
    if (auto shown = ShownHeading(stored, strings_)) return *shown;
    return Cp1252ToUtf8(stored);
  }

  // Each line of the grid with its heading first and a value per population.
  std::vector<Row> linesOf(Field field) const {
    const Grid& grid = record_.GetGrid(field);
    const std::size_t populations = counts_.populations.size();
    const bool inColumns = PopulationsInColumns(field);
    const std::size_t lines = inColumns ? grid.rows() : grid.cols();
    const auto at = [&](std::size_t line, std::size_t population) -> std::string {
      const std::size_t row = inColumns ? line : population;
      const std::size_t col = inColumns ? population : line;
      return row < grid.rows() && col < grid.cols() ? grid.at(row, col) : std::string();
    };
    std::vector<Row> rows;
    for (std::size_t line = 1; line < lines; ++line) {
      Row row{heading(at(line, 0))};
      for (std::size_t p = 1; p <= populations; ++p) row.push_back(Cp1252ToUtf8(Trim(at(line, p))));
      rows.push_back(std::move(row));
    }
    return rows;
  }

  const clsScenario& record_;
  const IStringTable& strings_;
  LayoutCounts counts_;
};

}  // namespace

std::string HtmlEscaped(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (char c : utf8) {
    switch (c) {
      case '&': out += "&amp;"; break;
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '"': out += "&quot;"; break;
      default: out += c;
    }
  }
  return out;
}

std::string ScenarioInputsHtml(const ScenarioCollection& scenarios, const IStringTable& strings) {
  std::string html;
  for (std::size_t n = 1; n <= scenarios.Count(); ++n) {
    const clsScenario& record = scenarios.Item(n);
    const ScenarioTables tables(record, strings);
    html += Cell("h2", Cp1252ToUtf8(Trim(record.Text(F("txtSceneName")))));
    html += HtmlTableOf(tables.settings(), false);
    html += "<p></p>";
    html += HtmlTableOf(tables.rates(), true);
  }
  return html;
}

std::string SummaryTableHtml(const Table& table) {
  std::vector<Row> rows;
  Row heading{table.corner};
  heading.insert(heading.end(), table.columns.begin(), table.columns.end());
  rows.push_back(std::move(heading));
  for (const TableRow& line : table.rows) {
    Row row{line.heading};
    row.insert(row.end(), line.cells.begin(), line.cells.end());
    rows.push_back(std::move(row));
  }
  return HtmlTableOf(rows, true);
}

}  // namespace tamsic
