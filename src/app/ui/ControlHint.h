#pragma once
// What a control answers in "What's This?" mode: its hint, the tooltip that
// also shows when the mouse rests on it. A list or table item with a hint of
// its own answers with that; a part of a control (a table's cells, a combo
// box's text) answers with the control's hint.
#include <QPoint>
#include <QString>

class QWidget;

QString ControlHint(const QWidget* widget, QPoint position);
