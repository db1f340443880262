#pragma once
// What the GUI tests share: a message box that answers the messages a test
// expects and fails it on any other, a scripted save-file dialog, and a
// program wired to both with the real string table and settings files.
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <deque>
#include <optional>

#include "app/ui/Program.h"
#include "app/ui/QtSettingsStore.h"

namespace guitest {

class ExpectedMessages : public tamsic::IMessageBox {
 public:
  ~ExpectedMessages() override {
    if (!expected_.empty())
      QTest::qFail(("message never shown: " + expected_.front().text).c_str(), __FILE__, __LINE__);
  }

  // The next message must begin with text; it is answered with answer.
  void expect(std::string text, tamsic::MsgAnswer answer = tamsic::MsgAnswer::Ok) {
    expected_.push_back({std::move(text), answer});
  }
  bool allShown() const { return expected_.empty(); }

  tamsic::MsgAnswer show(const tamsic::MessageBoxRequest& request) override {
    shown.push_back(request);
    if (expected_.empty() || request.text.rfind(expected_.front().text, 0) != 0) {
      const std::string what = "unexpected message: " + request.text;
      QTest::qFail(what.c_str(), __FILE__, __LINE__);
      return tamsic::MsgAnswer::Cancel;
    }
    const tamsic::MsgAnswer answer = expected_.front().answer;
    expected_.pop_front();
    return answer;
  }

  std::vector<tamsic::MessageBoxRequest> shown;

 private:
  struct Expected {
    std::string text;
    tamsic::MsgAnswer answer;
  };
  std::deque<Expected> expected_;
};

class ScriptedSaveDialog : public tamsic::ISaveFileDialog {
 public:
  std::optional<std::string> AskSavePath(const std::string&, const std::string& proposedName) override {
    proposed.push_back(proposedName);
    return answer;
  }
  std::optional<std::string> answer;
  std::vector<std::string> proposed;
};

// Empties the settings files of this test process (XDG_CONFIG_HOME is the
// test's own folder).
inline void ClearSettings() {
  // Run by hand without ctest's environment, an empty name would be the working folder.
  const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME");
  if (folder.isEmpty()) qFatal("XDG_CONFIG_HOME is not set: run the GUI tests through ctest");
  QDir(folder).removeRecursively();
}

inline QSettings GlobalSettingsFile() { return QSettings("Tamsic 9.99c", "Tamsic 9.99c"); }
inline QSettings RecentFile() { return QSettings("RichEdit", "RichEdit"); }

struct TestProgram {
  tamsic::StringTable strings = tamsic::StringTable::fromFile(tamsic::StringTable::locate());
  QtSettingsStore store;
  ExpectedMessages box;
  ScriptedSaveDialog saveDialog;
  Program program{strings, store, box, saveDialog};
  int engineClosed = 0;

  TestProgram() {
    program.closeEngine = [this] { ++engineClosed; };
  }
  // The text of a message in a language, whatever the program's language is now.
  std::string textIn(int language, int number) {
    const tamsic::Language current = strings.language();
    strings.setLanguage(static_cast<tamsic::Language>(language));
    std::string text = strings.text(number);
    strings.setLanguage(current);
    return text;
  }
};

inline QByteArray ReadFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void WriteFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write(bytes);
}

inline QString Example(const char* name) {
  return QStringLiteral(TAMSIC_SOURCE_DIR "/examples/") + name;
}

}  // namespace guitest
