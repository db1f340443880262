#pragma once
// The message interface lives in model/Messages.h; src/pages/ still includes
// it by this path until its own rewrite moves the include.
#include "model/Messages.h"
