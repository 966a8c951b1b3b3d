#include "tests/support/Room.h"
