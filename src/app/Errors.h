#pragma once
// The typed errors live in model/Errors.h; src/pages/ui/frmProject.cpp still
// includes them by this path until its own rewrite moves the include.
#include "model/Errors.h"
