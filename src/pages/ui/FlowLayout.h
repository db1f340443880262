#pragma once
// Lays its items out left to right and starts a new line when the next one
// does not fit, as words in a paragraph: a row of controls stays whole in a
// narrow window (two projects side by side) by taking two or three lines
// instead of being squeezed or cut. An item wider than the whole width gets
// that width, and the lines it then needs if it can wrap in turn.
#include <QLayout>
#include <QList>

class FlowLayout : public QLayout {
 public:
  explicit FlowLayout(QWidget* parent = nullptr, int spacing = 6);
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override;
  int count() const override;
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;

  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  void setGeometry(const QRect& rect) override;

 private:
  // Places the items in `rect` (only measures when `place` is false); answers the height used.
  int arrange(const QRect& rect, bool place) const;

  QList<QLayoutItem*> items_;
  int spacing_;
};
