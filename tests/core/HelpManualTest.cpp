// The manual shipped with the program, and the help's index and search over a
// small manual written for the test.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "app/HelpManual.h"
#include "app/HelpSearch.h"
#include "app/HelpTopics.h"
#include "model/Errors.h"
#include "support/TestFolder.h"

namespace tamsic {
namespace {

void Write(const std::filesystem::path& path, const std::string& text) { std::ofstream(path) << text; }

std::string Page(const std::string& title, const std::string& keywords, const std::string& body) {
  return "<html><head><meta charset=\"utf-8\"><title>" + title + "</title><meta name=\"keywords\" content=\"" +
         keywords + "\"></head><body><h1>" + title + "</h1>" + body + "</body></html>";
}

// Three topics: one about kinship, one that only mentions it often, one about extinction.
class SmallManual : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto& folder = here.path();
    Write(folder / "contents.html",
          Page("Help", "",
               "<p>Start <a href=\"breeding.html\">here</a>.</p><ul><li><a href=\"kinship.html\">Kinship</a><ul>"
               "<li><a href=\"extinction.html#median\">Median</a></li></ul></li>"
               "<li><a href=\"breeding.html\">Breeding</a></li></ul>"));
    Write(folder / "kinship.html", Page("Kinship", "kinship, relatedness", "<p>Kinship of two animals.</p>"));
    Write(folder / "breeding.html",
          Page("Breeding", "mean &amp; SD",
               "<p>Mates by kinship; kinship again; low kinship first. Breeding ends in extinction.</p>"
               "<p><a href=\"#nowhere\">a</a> <a href=\"missing.html\">b</a> <a href=\"https://example.org\">c</a>"
               " <a href=\"extinction.html#median\">d</a> <img src=\"images/none.png\"></p>"));
    Write(folder / "extinction.html",
          Page("Extinction risk", "extinction, P[extinct], median time to extinction",
               "<h2 id=\"median\">Median time to extinction</h2>"));
    manual = HelpManual::Load(folder);
  }

  test::TestFolder here;
  HelpManual manual;
};

std::vector<std::string> Files(const std::vector<SearchHit>& hits) {
  std::vector<std::string> files;
  for (const SearchHit& hit : hits) files.push_back(hit.file);
  return files;
}

std::vector<std::string> Keywords(const std::vector<IndexEntry>& entries) {
  std::vector<std::string> keywords;
  for (const IndexEntry& entry : entries) keywords.push_back(entry.keyword + " > " + entry.target);
  return keywords;
}

TEST_F(SmallManual, SearchPutsThePageAboutAWordFirstAndFindsOnlyPagesWithEveryWord) {
  EXPECT_EQ(Files(SearchManual(manual, "Kinship")), (std::vector<std::string>{"kinship.html", "breeding.html"}));
  EXPECT_EQ(Files(SearchManual(manual, "extinct")), (std::vector<std::string>{"extinction.html", "breeding.html"}));
  EXPECT_EQ(Files(SearchManual(manual, "kinship extinction")), (std::vector<std::string>{"breeding.html"}));
  EXPECT_TRUE(SearchManual(manual, "zebra").empty());
  EXPECT_TRUE(SearchManual(manual, "kinship zebra").empty());
  EXPECT_TRUE(SearchManual(manual, " ; ").empty());
}

TEST_F(SmallManual, IndexFindsKeywordsAndHeadingsByTheirBeginningFirst) {
  const std::vector<IndexEntry> index = BuildIndex(manual);
  EXPECT_EQ(Keywords(FindInIndex(index, "EXTINCT")),
            (std::vector<std::string>{"extinction > extinction.html",
                                      "Median time to extinction > extinction.html#median",
                                      "P[extinct] > extinction.html"}));
  EXPECT_EQ(Keywords(FindInIndex(index, "relat")), (std::vector<std::string>{"relatedness > kinship.html"}));
  EXPECT_EQ(Keywords(FindInIndex(index, "mean &")), (std::vector<std::string>{"mean & SD > breeding.html"}));
  EXPECT_TRUE(FindInIndex(index, "zebra").empty());
}

TEST_F(SmallManual, TopicsContentsAndLinksAreResolved) {
  EXPECT_EQ(manual.Target("kinship"), "kinship.html");
  EXPECT_EQ(manual.Target("median"), "extinction.html#median");
  EXPECT_EQ(manual.Target("nowhere"), std::nullopt);
  ASSERT_EQ(manual.contents().size(), 3u);
  EXPECT_EQ(manual.contents()[1].level, 2);
  EXPECT_EQ(manual.contents()[1].target, "extinction.html#median");
  EXPECT_EQ(manual.contents()[2].level, 1);
  EXPECT_EQ(manual.BrokenLinks(), (std::vector<std::string>{"breeding.html: #nowhere", "breeding.html: missing.html",
                                                            "breeding.html: https://example.org",
                                                            "breeding.html: images/none.png"}));

  const std::filesystem::path empty = here.path() / "empty";
  std::filesystem::create_directory(empty);
  EXPECT_EQ(HelpManual::Locate({empty, here.path()}), here.path());
  EXPECT_EQ(HelpManual::Locate({empty}), std::nullopt);
  EXPECT_THROW(HelpManual::Load(empty), FileError);
}

// The program opens every one of its topics in the shipped manual, whose
// pages all stand in the contents and whose links all lead somewhere.
TEST(ShippedManual, HasEveryTopicOfTheProgramAndNoBrokenLink) {
  const HelpManual manual = HelpManual::Load(TAMSIC_SOURCE_DIR "/docs/manual");
  for (const std::string_view topic : help::ProgramTopics())
    EXPECT_TRUE(manual.Target(topic).has_value()) << "no topic " << topic;
  EXPECT_EQ(manual.BrokenLinks(), std::vector<std::string>{});
  std::set<std::string> listed;
  for (const ContentsEntry& entry : manual.contents()) listed.insert(entry.target.substr(0, entry.target.find('#')));
  for (const ManualPage& page : manual.pages()) {
    EXPECT_FALSE(page.html.title.empty()) << page.file;
    if (page.file == kManualContents) continue;
    EXPECT_TRUE(listed.contains(page.file)) << page.file << " is not in the contents";
    EXPECT_FALSE(page.html.keywords.empty()) << page.file << " has no keywords for the index";
  }
}

}  // namespace
}  // namespace tamsic
