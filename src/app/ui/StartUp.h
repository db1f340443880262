#pragma once
// The program's first moments on screen: the splash over the main frame, then
// the project named on the command line, or else the welcome dialog once the
// splash has gone. Work files that failed runs left behind more than a week
// ago are deleted on the way.
#include <QString>

class mdiMain;
struct Program;

void StartUp(mdiMain& frame, Program& program, const QString& project);
