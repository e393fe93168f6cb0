#include "Probe.h"

#import "TNStartUp.h"

namespace tarnwick::probe {

void startUp() {
    @autoreleasepool {
        TNPrepareProcess(
            {.identifier = @"org.halvane.Tarnwick", .opener = @"/bin/true", .endsAtExceptions = true});
    }
}

std::string standardString(const std::string &key) {
    @autoreleasepool {
        NSString *name = [NSString stringWithUTF8String:key.c_str()];
        NSString *value = [[NSUserDefaults standardUserDefaults] stringForKey:name];
        return value ? [value UTF8String] : "(none)";
    }
}

void setStandardString(const std::string &key, const std::string &value) {
    @autoreleasepool {
        [[NSUserDefaults standardUserDefaults] setObject:[NSString stringWithUTF8String:value.c_str()]
                                                  forKey:[NSString stringWithUTF8String:key.c_str()]];
    }
}

bool synchronizeStandardDomain() {
    @autoreleasepool {
        return [[NSUserDefaults standardUserDefaults] synchronize];
    }
}

std::vector<std::string> imageReaders() {
    @autoreleasepool {
        [NSImage imageNamed:@"there is none of this name"];
        std::vector<std::string> names;
        for (Class reader in [NSImageRep registeredImageRepClasses]) {
            names.emplace_back(class_getName(reader));
        }
        return names;
    }
}

} // namespace tarnwick::probe
