#include <gtest/gtest.h>

#include "MemorySettingsStore.h"
#include "app/GlobalSettings.h"
#include "app/RecentProjects.h"

namespace tamsic {
namespace {

using test::MemorySettingsStore;

void StoreGlobal(MemorySettingsStore& store, const char* equation, const char* welcome, const char* language) {
  store.SaveSetting("Tamsic 9.99c", "GlobalSettings", "ShowEquationDialogOnEquals", equation);
  store.SaveSetting("Tamsic 9.99c", "GlobalSettings", "ShowWelcome", welcome);
  store.SaveSetting("Tamsic 9.99c", "GlobalSettings", "Language", language);
}

TEST(GlobalSettings, AbsentOrUnreadableValuesFallBackToOne) {
  MemorySettingsStore store;
  EXPECT_EQ(ReadGlobalSettings(store), (GlobalSettings{1, 1, 1}));

  StoreGlobal(store, "yes", "0x", "7");
  EXPECT_EQ(ReadGlobalSettings(store), (GlobalSettings{1, 1, 1}));
  StoreGlobal(store, " 0 ", "0", "3");
  EXPECT_EQ(ReadGlobalSettings(store), (GlobalSettings{0, 0, 3}));
}

std::string Stored(const MemorySettingsStore& store, const std::string& key) {
  return store.GetSetting("RichEdit", "MRUList", key, "<absent>");
}

TEST(RecentProjects, ReopeningMovesToTopAndAnEleventhDropsTheOldest) {
  MemorySettingsStore store;
  RecentProjects recent(store);
  recent.Add("/p/Trout.tpj", "Trout");
  recent.Add("/p/Salmon.tpj", "Salmon");
  recent.Add("/P/TROUT.tpj", "Trout again");
  ASSERT_EQ(recent.Entries().size(), 2u) << "the same file, ignoring case, is not listed twice";
  EXPECT_EQ(recent.Entries()[0], (RecentProject{"/P/TROUT.tpj", "Trout again"}));
  EXPECT_EQ(Stored(store, "1Name"), "/P/TROUT.tpj");
  EXPECT_EQ(Stored(store, "1Title"), "Trout again");
  EXPECT_EQ(Stored(store, "2Name"), "/p/Salmon.tpj");
  EXPECT_EQ(Stored(store, "3Name"), "");

  for (int n = 1; n <= 9; ++n) recent.Add("/p/" + std::to_string(n) + ".tpj", "");
  ASSERT_EQ(recent.Entries().size(), 10u);
  EXPECT_EQ(recent.Entries().front().name, "/p/9.tpj");
  EXPECT_EQ(recent.Entries().back().name, "/P/TROUT.tpj") << "Salmon, the oldest, is dropped";
  EXPECT_EQ(Stored(store, "10Name"), "/P/TROUT.tpj");
  EXPECT_EQ(Stored(store, "11Name"), "<absent>");
}

TEST(RecentProjects, GapInStoredKeysDoesNotEndTheLoadNorComeBackLater) {
  MemorySettingsStore store;
  store.SaveSetting("RichEdit", "MRUList", "1Name", "/p/a.tpj");
  store.SaveSetting("RichEdit", "MRUList", "1Title", "A");
  store.SaveSetting("RichEdit", "MRUList", "2Name", "");
  store.SaveSetting("RichEdit", "MRUList", "10Name", "/p/j.tpj");
  store.SaveSetting("RichEdit", "MRUList", "10Title", "J");

  RecentProjects recent(store);
  EXPECT_EQ(recent.Entries(),
            (std::vector<RecentProject>{{"/p/a.tpj", "A"}, {"/p/j.tpj", "J"}}));

  recent.Add("/p/new.tpj", "New");
  EXPECT_EQ(RecentProjects(store).Entries().size(), 3u);
}

TEST(RecentProjects, MenuCaptionMakesOnlyTheNumberAnAccessKey) {
  EXPECT_EQ(RecentProjects::MenuCaption(3, {"/p/Bats & Owls.tpj", "t"}), "&3 /p/Bats && Owls.tpj");
  EXPECT_EQ(RecentProjects::MenuCaption(10, {"x.tpj", ""}), "&10 x.tpj");
}

}  // namespace
}  // namespace tamsic
