#include "sides/HRFReadFolder.h"

int main(int argc, char **argv)
{
    return HRFReadFolder(argc, argv, HRFEngineSide);
}
