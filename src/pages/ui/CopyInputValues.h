#pragma once
// "Copy Input Values from [population] [This section | All sections] to
// subsequent populations.": the row of controls under the input pages.
#include <QWidget>

#include "pages/ui/PageContext.h"

class QComboBox;
class QPushButton;

class CopyInputValuesBar : public QWidget {
  Q_OBJECT
 public:
  CopyInputValuesBar(const PageContext& context, QWidget* parent = nullptr);

  void setPopulations(const QStringList& labels);

  QComboBox* cboPopulationPicker;
  QComboBox* cboSectionPicker;
  QPushButton* ssCMDCopyInputValues;

 signals:
  // `from` counts populations from 1.
  void copyRequested(int from, bool allSections);
};
