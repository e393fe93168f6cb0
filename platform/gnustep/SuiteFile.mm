#import "SuiteFile.h"

#import "DefaultsFiles.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Holds the lock beside the file for a scope.
class FileLock {
public:
    explicit FileLock(NSString *path)
        : descriptor_(open([[path stringByAppendingString:@".lock"] fileSystemRepresentation],
              O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR)) {
        while (descriptor_ >= 0 && flock(descriptor_, LOCK_EX) != 0 && errno == EINTR) {
        }
    }
    ~FileLock() {
        if (descriptor_ >= 0) {
            close(descriptor_);
        }
    }
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;

private:
    int descriptor_;
};

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

/// Puts a file in place that is either the old one or wholly the new one, also after a power failure.
bool replaceFile(NSString *path, NSData *content) {
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

NSData *serialised(NSDictionary *content) {
    return [NSPropertyListSerialization dataWithPropertyList:content
                                                      format:NSPropertyListXMLFormat_v1_0
                                                     options:0
                                                       error:nullptr];
}

void makeFolder(NSString *path) {
    [[NSFileManager defaultManager] createDirectoryAtPath:[path stringByDeletingLastPathComponent]
                              withIntermediateDirectories:YES
                                               attributes:nil
                                                    error:nullptr];
}

} // namespace

@implementation TNSuiteFile

- (instancetype)initWithPath:(NSString *)path {
    self = [super init];
    if (self) {
        _path = [path copy];
    }
    return self;
}

- (void)dealloc {
    [_path release];
    [super dealloc];
}

/// Notes which version of the file is there; NO when it is the one noted before.
- (BOOL)noteVersion {
    struct stat status = {};
    const bool exists = stat([_path fileSystemRepresentation], &status) == 0;
    if (!exists) {
        status = {};
    }
    if (_wasRead && _device == status.st_dev && _inode == status.st_ino &&
        _modifiedSeconds == status.st_mtim.tv_sec && _modifiedNanoseconds == status.st_mtim.tv_nsec) {
        return NO;
    }
    _wasRead = YES;
    _device = status.st_dev;
    _inode = status.st_ino;
    _modifiedSeconds = status.st_mtim.tv_sec;
    _modifiedNanoseconds = status.st_mtim.tv_nsec;
    return YES;
}

/// Under the lock.
- (NSDictionary *)readContent {
    TNMoveDamagedFileAside(_path);
    NSData *content = [NSData dataWithContentsOfFile:_path];
    id dictionary = [content length] == 0
                        ? nil
                        : [NSPropertyListSerialization propertyListWithData:content
                                                                    options:NSPropertyListImmutable
                                                                     format:nullptr
                                                                      error:nullptr];
    return [dictionary isKindOfClass:[NSDictionary class]] ? dictionary : [NSDictionary dictionary];
}

- (NSDictionary *)changedContent {
    struct stat status = {};
    if (stat([_path fileSystemRepresentation], &status) != 0) {
        // No lock file beside a file that nobody has written.
        return [self noteVersion] ? [NSDictionary dictionary] : nil;
    }
    const FileLock lock(_path);
    if (![self noteVersion]) {
        return nil;
    }
    NSDictionary *content = [self readContent];
    [self noteVersion];
    return content;
}

- (NSDictionary *)contentByMerging:(NSDictionary *)changes {
    makeFolder(_path);
    const FileLock lock(_path);
    NSDictionary *before = [self readContent];
    NSMutableDictionary *after = [[before mutableCopy] autorelease];
    for (NSString *key in changes) {
        id value = [changes objectForKey:key];
        if (value == [NSNull null]) {
            [after removeObjectForKey:key];
        } else {
            [after setObject:value forKey:key];
        }
    }
    // Not isEqual:, for which a boolean equals a number.
    NSData *content = serialised(after);
    if (!content || (![content isEqual:serialised(before)] && !replaceFile(_path, content))) {
        NSLog(@"Settings file %@ cannot be written: %s", _path, std::strerror(errno));
        return nil;
    }
    [self noteVersion];
    return after;
}

@end
