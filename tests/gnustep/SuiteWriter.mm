#include "Probe.h"

#include <string>

/// Another program that changes a suite: SuiteWriter <suite> <key> <value>. With "--exit" ahead it starts up
/// as the application does, changes both domains, synchronises neither and ends.
int main(int argc, char *argv[]) {
    using namespace tarnwick::probe;
    if (argc == 4) {
        setSuiteString(argv[1], argv[2], argv[3]);
        return synchronizeSuite(argv[1]) ? 0 : 1;
    }
    if (argc == 5 && std::string(argv[1]) == "--exit") {
        startUp();
        setSuiteString(argv[2], argv[3], argv[4]);
        setStandardString(argv[3], argv[4]);
        return 0;
    }
    return 2;
}
