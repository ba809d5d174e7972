#include "Companions.h"

CompanionFunctions& companionFunctions()
{
    static CompanionFunctions functions;
    return functions;
}
