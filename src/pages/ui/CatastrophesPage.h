#pragma once
// "Catastrophes": the types' labels, their scope and frequency in each
// population, and their severity on reproduction and survival.
#include "pages/ui/InputPage.h"

class CatastrophesPage : public InputPage {
  Q_OBJECT
 public:
  explicit CatastrophesPage(const PageContext& context, QWidget* parent = nullptr);

  void showRecord(const tamsic::clsScenario& record) override;
  void storeInto(tamsic::clsScenario& record) const override;

  GridView* gridCatastropheLabels;
  GridView* gridCatastrophes1;
  GridView* gridCatastrophes2;

 private:
  void layOut();
};
