#pragma once
// "Mate Monopolization": the share of males that breed, per population.
#include "pages/ui/InputPage.h"

class MonopolizationPage : public InputPage {
  Q_OBJECT
 public:
  explicit MonopolizationPage(const PageContext& context, QWidget* parent = nullptr);

  GridView* gridDegMonop;
};
