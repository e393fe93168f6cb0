// Missing: recovery. NSUserDefaults of GNUstep Base 1.28 waits 20 seconds for the lock of a killed program,
// and overwrites a domain's file that it cannot read or may not open; a lock left beside the names of message
// ports ends the program.

#import "gnustep/defaults/DefaultsFiles.h"

#import <Foundation/Foundation.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Longer than any program holds it.
constexpr time_t lockLifetime = 3;
constexpr useconds_t pollMicroseconds = 20'000;

NSString *freeDamagedName(NSString *path) {
    for (int number = 1;; ++number) {
        NSString *candidate = [NSString stringWithFormat:@"%@.damaged-%d", path, number];
        struct stat status;
        if (lstat([candidate fileSystemRepresentation], &status) != 0) {
            return candidate;
        }
    }
}

void moveAside(NSString *path) {
    NSString *aside = freeDamagedName(path);
    if (std::rename([path fileSystemRepresentation], [aside fileSystemRepresentation]) == 0) {
        std::fprintf(stderr, "Settings file %s cannot be read; moved to %s\n",
            [path fileSystemRepresentation], [aside fileSystemRepresentation]);
    } else {
        std::fprintf(stderr, "Settings file %s cannot be read, and not moved either: %s\n",
            [path fileSystemRepresentation], std::strerror(errno));
    }
}

void reportClosed(NSString *path) {
    static NSMutableSet *const reported = [[NSMutableSet alloc] init];
    if (![reported containsObject:path]) {
        std::fprintf(stderr, "Settings file %s cannot be opened and is left alone: %s\n",
            [path fileSystemRepresentation], std::strerror(errno));
        [reported addObject:path];
    }
}

void removeStaleLock(NSString *lock) {
    const char *path = [lock fileSystemRepresentation];
    struct stat status;
    // Whoever holds it lets go, or turns out to be gone.
    while (stat(path, &status) == 0) {
        if (std::time(nullptr) - status.st_mtime > lockLifetime) {
            rmdir(path);
            return;
        }
        usleep(pollMicroseconds);
    }
}

NSDictionary *dictionaryIn(NSString *path) {
    id list = [NSPropertyListSerialization propertyListWithData:[NSData dataWithContentsOfFile:path]
                                                        options:NSPropertyListImmutable
                                                         format:nullptr
                                                          error:nullptr];
    return [list isKindOfClass:[NSDictionary class]] ? list : nil;
}

} // namespace

NSString *TNDefaultsFolder() {
    return GSDefaultsRootForUser(NSUserName());
}

NSString *TNSettingsFileOf(NSString *domain) {
    return
        [TNDefaultsFolder() stringByAppendingPathComponent:[domain stringByAppendingPathExtension:@"plist"]];
}

void TNRemoveStaleLocks() {
    removeStaleLock([TNDefaultsFolder() stringByAppendingPathComponent:@".lck/.GNUstepDefaults.lck"]);
    removeStaleLock([NSTemporaryDirectory() stringByAppendingPathComponent:@"NSMessagePort/names/lock"]);
}

bool TNSettingsFileIsClosed(NSString *path) {
    const int descriptor = open([path fileSystemRepresentation], O_RDONLY | O_CLOEXEC);
    if (descriptor >= 0) {
        close(descriptor);
        return false;
    }
    return errno != ENOENT && errno != ENOTDIR;
}

NSDictionary *TNReadSettingsFile(NSString *path) {
    struct stat status;
    if (stat([path fileSystemRepresentation], &status) != 0) {
        return nil;
    }
    if (TNSettingsFileIsClosed(path)) {
        reportClosed(path);
        return nil;
    }
    NSDictionary *content = dictionaryIn(path);
    if (!content) {
        moveAside(path);
    }
    return content;
}
