#pragma once
// The columns of the summary table: the variables on offer on the left, the
// table's own on the right in their order; Add and Remove move the chosen
// entry across, Up and Down move it within the table's list.
#include <QDialog>
#include <string>
#include <vector>

#include "model/Messages.h"

class QListWidget;
class QPushButton;

class frmSpecify : public QDialog {
  Q_OBJECT
 public:
  // `offered` in the order the left list keeps; `chosen` the table's columns now.
  frmSpecify(const tamsic::IStringTable& strings, std::vector<std::string> offered,
             const std::vector<std::string>& chosen, QWidget* parent = nullptr);

  std::vector<std::string> chosen() const;

  QListWidget* lstAvailable;
  QListWidget* lstChosen;
  QPushButton* cmdAdd;
  QPushButton* cmdRemove;
  QPushButton* cmdUp;
  QPushButton* cmdDown;
  QPushButton* cmdOK;
  QPushButton* cmdCancel;

 private:
  void add();
  void remove();
  void move(int step);
  void fillAvailable();

  std::vector<std::string> offered_;
};
