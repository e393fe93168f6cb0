// Missing: settings files that survive a power failure, as of GNUstep Base 1.28, which renames a new file
// over the old one without waiting until the new one is on the disk.

#import "gnustep/defaults/FileReplacement.h"

#import "gnustep/defaults/DefaultsFiles.h"

#import <Foundation/Foundation.h>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool writeAll(int descriptor, NSData *content) {
    const auto *bytes = static_cast<const char *>([content bytes]);
    std::size_t left = [content length];
    while (left > 0) {
        const auto written = write(descriptor, bytes, left);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return false;
        }
        bytes += written;
        left -= static_cast<std::size_t>(written);
    }
    return true;
}

} // namespace

bool TNIsSettingsFile(NSString *path) {
    return [[path stringByDeletingLastPathComponent] isEqualToString:TNDefaultsFolder()];
}

bool TNReplaceFile(NSString *path, NSData *content) {
    NSString *temporary = [path stringByAppendingString:@".tmp"];
    const char *temporaryPath = [temporary fileSystemRepresentation];
    const int descriptor = open(temporaryPath, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0) {
        return false;
    }
    const bool written = writeAll(descriptor, content) && fsync(descriptor) == 0;
    const int writeError = errno;
    close(descriptor);
    if (written && std::rename(temporaryPath, [path fileSystemRepresentation]) == 0) {
        return true;
    }
    const int error = written ? errno : writeError;
    unlink(temporaryPath);
    errno = error;
    return false;
}
