#include "Probe.h"

/// Another program that changes a suite: SuiteWriter <suite> <key> <value>.
int main(int argc, char *argv[]) {
    if (argc != 4) {
        return 2;
    }
    tarnwick::probe::setSuiteString(argv[1], argv[2], argv[3]);
    return tarnwick::probe::synchronizeSuite(argv[1]) ? 0 : 1;
}
