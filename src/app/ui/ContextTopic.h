#pragma once
// The help topic of what has the focus, found by walking up from the focused
// control: the input page on show, the tab of the project window, or the
// window or dialog it belongs to; the contents when nothing has a topic.
#include <QString>

class QWidget;

QString ContextTopic(const QWidget* focus);
