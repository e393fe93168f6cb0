#include "Probe.h"

#import <Foundation/Foundation.h>

#include <cstdlib>

namespace tarnwick::probe {
namespace {

NSString *text(const std::string &string) {
    return [NSString stringWithUTF8String:string.c_str()];
}

NSUserDefaults *suiteNamed(const std::string &name) {
    return [[[NSUserDefaults alloc] initWithSuiteName:text(name)] autorelease];
}

std::string pathOf(NSURL *url) {
    return url ? std::string([[url path] fileSystemRepresentation]) : std::string();
}

} // namespace

std::string defaultsFolder() {
    return std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/defaults";
}

std::string libraryFolder() {
    return std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/library";
}

bool writeEveryKind(const std::string &name) {
    @autoreleasepool {
        NSUserDefaults *suite = suiteNamed(name);
        [suite setBool:YES forKey:@"boolean"];
        [suite setInteger:1 forKey:@"integer"];
        [suite setDouble:2.5 forKey:@"real"];
        [suite setObject:@"\u8868\u683c \U0001F5C2 & <x>" forKey:@"string"];
        [suite setObject:[NSData dataWithBytes:"a\0b" length:3] forKey:@"data"];
        [suite setObject:[NSDate dateWithTimeIntervalSince1970:86400] forKey:@"date"];
        NSDictionary *inner = [NSDictionary dictionaryWithObjectsAndKeys:@NO, @"off", @7, @"seven", nil];
        [suite setObject:[NSArray arrayWithObject:inner] forKey:@"array"];
        return [suite synchronize];
    }
}

void setSuiteString(const std::string &suite, const std::string &key, const std::string &value) {
    @autoreleasepool {
        [suiteNamed(suite) setObject:text(value) forKey:text(key)];
    }
}

void setSuiteBoolean(const std::string &suite, const std::string &key, bool value) {
    @autoreleasepool {
        [suiteNamed(suite) setBool:value forKey:text(key)];
    }
}

void removeSuiteKey(const std::string &suite, const std::string &key) {
    @autoreleasepool {
        [suiteNamed(suite) removeObjectForKey:text(key)];
    }
}

bool synchronizeSuite(const std::string &suite) {
    @autoreleasepool {
        return [suiteNamed(suite) synchronize];
    }
}

bool writeRecords(const std::string &name, int count, MarkKind kind) {
    @autoreleasepool {
        NSNumber *mark = kind == MarkKind::boolean ? @YES : @1;
        NSMutableArray *records = [NSMutableArray array];
        for (int number = 0; number < count; ++number) {
            NSString *path = [NSString stringWithFormat:@"/home/user/folder %d", number];
            [records addObject:[NSDictionary dictionaryWithObjectsAndKeys:path, @"realPath", @"1", @"enable",
                                             mark, @"mark", nil]];
        }
        [suiteNamed(name) setObject:records forKey:@"list"];
        return [suiteNamed(name) synchronize];
    }
}

std::string suiteString(const std::string &suite, const std::string &key) {
    @autoreleasepool {
        NSString *value = [suiteNamed(suite) stringForKey:text(key)];
        return value ? [value UTF8String] : "(none)";
    }
}

bool waitForFile(const std::string &path) {
    @autoreleasepool {
        NSDate *end = [NSDate dateWithTimeIntervalSinceNow:10];
        // Something to wait for, so that the loop does not return at once.
        [[NSRunLoop currentRunLoop] addPort:[NSPort port] forMode:NSDefaultRunLoopMode];
        while (![[NSFileManager defaultManager] fileExistsAtPath:text(path)]) {
            if ([end timeIntervalSinceNow] < 0) {
                return false;
            }
            [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                     beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
        }
        return true;
    }
}

std::string groupContainer(const std::string &identifier) {
    @autoreleasepool {
        return pathOf([[NSFileManager defaultManager]
            containerURLForSecurityApplicationGroupIdentifier:text(identifier)]);
    }
}

std::string scriptsFolder() {
    @autoreleasepool {
        return pathOf([[NSFileManager defaultManager] URLForDirectory:NSApplicationScriptsDirectory
                                                             inDomain:NSUserDomainMask
                                                    appropriateForURL:nil
                                                               create:YES
                                                                error:nullptr]);
    }
}

} // namespace tarnwick::probe
