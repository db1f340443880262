#include <gtest/gtest.h>

#include <deque>
#include <filesystem>

#include "ProjectSamples.h"
#include "app/EnglishMessages.h"
#include "app/StringTable.h"
#include "files/NewProject.h"
#include "files/ProjectFile.h"
#include "files/ProjectSaveFlow.h"
#include "support/TestFolder.h"

namespace tamsic {
namespace {

using test::FilledProject;
using test::ReadAll;
using test::TestFolder;

// Answers each question from a script and fails on any message not expected.
class ScriptedBox : public IMessageBox {
 public:
  MsgAnswer show(const MessageBoxRequest& request) override {
    shown.push_back(request.text);
    if (answers.empty()) {
      ADD_FAILURE() << "unexpected message: " << request.text;
      return MsgAnswer::Cancel;
    }
    const MsgAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::deque<MsgAnswer> answers;
  std::vector<std::string> shown;
};

class ScriptedDialog : public ISaveFileDialog {
 public:
  std::optional<std::string> AskSavePath(const std::string& folder,
                                         const std::string& proposedName) override {
    asked.push_back(folder + "|" + proposedName);
    return answer;
  }
  std::optional<std::string> answer;
  std::vector<std::string> asked;
};

class SaveFlow : public ::testing::Test {
 protected:
  SaveFlow() { state.document = FilledProject(1); }

  ProjectState Saved(const std::string& name, const std::string& title) {
    ProjectState saved;
    saved.document = FilledProject(1);
    saved.document.title = title;
    saved.SetFullPath(folder.file(name));
    return saved;
  }

  TestFolder folder;
  ScriptedBox box;
  EnglishMessages strings;
  Messages messages{box, strings};
  ScriptedDialog dialog;
  ProjectState state;
};

TEST_F(SaveFlow, TitleThatDiffersFromFileNameOffersToSaveUnderTheTitle) {
  ProjectState trout = Saved("Salmon.tpj", " Trout ");
  box.answers = {MsgAnswer::Yes};
  EXPECT_EQ(FunctionSave(trout, messages, dialog), SaveResult::Saved);
  EXPECT_EQ(box.shown.front(), strings.text(9136));
  EXPECT_EQ(trout.FullPath(), folder.file("Trout.tpj"));
  EXPECT_TRUE(std::filesystem::exists(folder.file("Trout.tpj")));
  EXPECT_FALSE(std::filesystem::exists(folder.file("Salmon.tpj")));

  ProjectState kept = Saved("Salmon.tpj", "Trout");
  box.answers = {MsgAnswer::No};
  EXPECT_EQ(FunctionSave(kept, messages, dialog), SaveResult::Saved);
  EXPECT_EQ(kept.FullPath(), folder.file("Salmon.tpj"));
  EXPECT_TRUE(dialog.asked.empty());
}

TEST_F(SaveFlow, MatchingOrEmptyTitleSavesWithoutQuestions) {
  ProjectState same = Saved("Trout.tpj", "Trout");
  same.MarkChanged();
  EXPECT_EQ(FunctionSave(same, messages, dialog), SaveResult::Saved);
  EXPECT_FALSE(same.Changed());
  ProjectState untitled = Saved("Trout.tpj", "  ");
  EXPECT_EQ(FunctionSave(untitled, messages, dialog), SaveResult::Saved);
  EXPECT_TRUE(box.shown.empty());
}

TEST_F(SaveFlow, NeverSavedOrVanishedFolderAsksForAFile) {
  state.document.title = "Koalas";
  state.proposedFolder = folder.path().string();
  dialog.answer = folder.file("Koalas.tpj");
  EXPECT_EQ(FunctionSave(state, messages, dialog), SaveResult::Saved);
  EXPECT_EQ(dialog.asked.back(), folder.path().string() + "|Koalas");

  ProjectState gone = Saved("gone/Koalas.tpj", "Koalas");
  dialog.answer = folder.file("Elsewhere.tpj");
  box.answers = {MsgAnswer::No};
  EXPECT_EQ(FunctionSave(gone, messages, dialog), SaveResult::Saved);
  EXPECT_EQ(gone.FullPath(), folder.file("Elsewhere.tpj"));
  EXPECT_EQ(gone.document.title, "Koalas");
}

TEST_F(SaveFlow, SaveAsOffersTheFileNameAsTitleAndCancelAbandons) {
  state.document.title = "Old";
  dialog.answer = folder.file("New.tpj");
  box.answers = {MsgAnswer::Cancel};
  EXPECT_EQ(FunctionSaveAs(state, messages, dialog), SaveResult::Cancelled);
  EXPECT_EQ(box.shown.back(), strings.text(9137));
  EXPECT_FALSE(std::filesystem::exists(folder.file("New.tpj")));
  EXPECT_TRUE(state.FullPath().empty());

  box.answers = {MsgAnswer::Yes};
  EXPECT_EQ(FunctionSaveAs(state, messages, dialog), SaveResult::Saved);
  EXPECT_EQ(state.document.title, "New");
  EXPECT_EQ(state.FullPath(), folder.file("New.tpj"));

  dialog.answer.reset();
  EXPECT_EQ(FunctionSaveAs(state, messages, dialog), SaveResult::Cancelled);
}

TEST_F(SaveFlow, FailedWriteIsReportedAndLeavesTheProjectUnsaved) {
  // A folder in the file's place cannot be replaced by a file, whoever runs the test.
  std::filesystem::create_directories(folder.file("Trout.tpj"));
  ProjectState trout = Saved("Trout.tpj", "Trout");
  trout.MarkChanged();
  box.answers = {MsgAnswer::Ok};
  EXPECT_EQ(FunctionSave(trout, messages, dialog), SaveResult::Failed);
  ASSERT_EQ(box.shown.size(), 1u);
  EXPECT_NE(box.shown.front().find("Trout.tpj"), std::string::npos) << box.shown.front();
  EXPECT_TRUE(trout.Changed());
  EXPECT_TRUE(std::filesystem::is_directory(folder.file("Trout.tpj")));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST_F(SaveFlow, ChangedProjectAsksBeforeClosing) {
  EXPECT_TRUE(MayCloseProject(state, messages, dialog, Closing::Project));
  EXPECT_TRUE(box.shown.empty());

  state.MarkChanged();
  state.document.title = "Kiwi";
  box.answers = {MsgAnswer::Cancel};
  EXPECT_FALSE(MayCloseProject(state, messages, dialog, Closing::Project));
  EXPECT_EQ(box.shown.back(), strings.text(9185) + "\n\nKiwi");
  box.answers = {MsgAnswer::No};
  EXPECT_TRUE(MayCloseProject(state, messages, dialog, Closing::Program));
  EXPECT_EQ(box.shown.back(), strings.text(9118) + "\n\nKiwi");
  box.answers = {MsgAnswer::Yes};
  EXPECT_FALSE(MayCloseProject(state, messages, dialog, Closing::Project)) << "the save dialog was cancelled";
}

TEST_F(SaveFlow, NewProjectIsTitledByItsNameAndSurvivesItsFirstSave) {
  state.document = NewProject("Forêt", "Ann");
  EXPECT_EQ(state.document.title, "For\xEAt");
  EXPECT_EQ(state.document.users, std::vector<std::string>{"Ann"});
  ASSERT_EQ(state.document.scenarios.Count(), 1u);

  dialog.answer = folder.file("Forêt.tpj");
  ASSERT_EQ(FunctionSaveAs(state, messages, dialog), SaveResult::Saved);
  EXPECT_EQ(LoadProject(state.FullPath(), "9.99", messages), state.document);
}

TEST(ProjectCaption, TitleOrUnnamedThenPathOrNotSaved) {
  const StringTable table = StringTable::fromFile(StringTable::locate());
  ProjectState state;
  EXPECT_EQ(ProjectCaption(state, table), "Unnamed Tamsic Project - not previously saved");
  state.document.title = "  Koalas ";
  EXPECT_EQ(ProjectCaption(state, table), "Koalas - not previously saved");
  state.SetFullPath("/data/Koalas.tpj");
  EXPECT_EQ(ProjectCaption(state, table), "Koalas - /data/Koalas.tpj");
  state.document.title = "";
  EXPECT_EQ(ProjectCaption(state, table), "Unnamed Tamsic Project - /data/Koalas.tpj");
}

}  // namespace
}  // namespace tamsic
