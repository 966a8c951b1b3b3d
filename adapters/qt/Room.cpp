#include "adapters/qt/Room.h"
