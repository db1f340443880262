#pragma once
// "New Scenario": choose a template among the project's scenarios and how
// many copies of it to create.
#include <QDialog>
#include <cstddef>

#include "model/ScenarioCollection.h"
#include "pages/ui/PageContext.h"

class QLineEdit;
class QTableWidget;

class frmNewScenario : public QDialog {
  Q_OBJECT
 public:
  frmNewScenario(const PageContext& context, const tamsic::ScenarioCollection& scenarios, std::size_t current,
                 QWidget* parent = nullptr);

  std::size_t templateNumber() const;
  // The number typed, or 0 when it is not a whole number from 1 to 100.
  int count() const;

  QTableWidget* lstTemplates;
  QLineEdit* txtNumCreate;
};
