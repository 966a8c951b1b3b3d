// Prints the kind, rack and number of a place position; exits with 1 when it is none.
#include "zqbchwcx/foundation/mdl_Main.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    const auto position = zqbchwcx::G_PositionInfo(argc > 1 ? std::atoi(argv[1]) : -1);
    std::printf("%d %d %d\n", position.eType, position.lRack, position.lNumber);
    return position.eType == zqbchwcx::vxPositionNone ? 1 : 0;
}
