#pragma once
// The program's window icon, drawn rather than shipped as a file: a "T" on
// the green of the splash window.
#include <QIcon>

QIcon ProgramIcon();
