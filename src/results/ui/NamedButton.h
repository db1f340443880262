#pragma once
// The texts of the results windows come from the core as UTF-8; their buttons
// carry object names by which tests find them.
#include <QPushButton>
#include <QString>
#include <string>

inline QString Q(const std::string& text) { return QString::fromStdString(text); }

inline QPushButton* Button(const std::string& caption, const char* name, QWidget* parent) {
  auto* button = new QPushButton(Q(caption), parent);
  button->setObjectName(name);
  return button;
}
