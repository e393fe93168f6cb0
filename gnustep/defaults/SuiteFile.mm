#import "gnustep/defaults/SuiteFile.h"

#import "gnustep/defaults/DefaultsFiles.h"
#import "gnustep/defaults/FileReplacement.h"
#import "gnustep/defaults/PropertyListValues.h"

#include <cerrno>
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
    [_content release];
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

- (void)keepContent:(NSDictionary *)content {
    [_content autorelease];
    _content = [content copy];
}

/// Reads the file if it is another one than before; NO when it is not. Under the lock.
- (BOOL)updateContent {
    if (![self noteVersion]) {
        return NO;
    }
    NSDictionary *content = TNReadSettingsFile(_path);
    [self keepContent:content ? content : [NSDictionary dictionary]];
    // It may have been moved aside.
    [self noteVersion];
    // Its opening to this user would be no new version.
    _wasRead = !TNSettingsFileIsClosed(_path);
    return YES;
}

- (NSDictionary *)changedContent {
    struct stat status = {};
    if (stat([_path fileSystemRepresentation], &status) != 0) {
        // No lock file beside a file that nobody has written.
        return [self updateContent] ? _content : nil;
    }
    const FileLock lock(_path);
    return [self updateContent] ? _content : nil;
}

- (NSDictionary *)contentByMerging:(NSDictionary *)changes {
    makeFolder(_path);
    const FileLock lock(_path);
    [self updateContent];
    NSMutableDictionary *merged = [[_content mutableCopy] autorelease];
    bool differs = false;
    for (NSString *key in changes) {
        id value = [changes objectForKey:key];
        id wanted = value == [NSNull null] ? nil : value;
        if (TNIsSamePropertyList(wanted, [merged objectForKey:key])) {
            continue;
        }
        differs = true;
        if (wanted) {
            [merged setObject:wanted forKey:key];
        } else {
            [merged removeObjectForKey:key];
        }
    }
    if (!differs) {
        return _content;
    }
    NSData *file = serialised(merged);
    const bool isClosed = TNSettingsFileIsClosed(_path);
    if (!file || isClosed || !TNReplaceFile(_path, file)) {
        if (!_isUnwritable) {
            NSLog(@"Settings file %@ cannot be written: %s", _path, std::strerror(errno));
        }
        _isUnwritable = YES;
        return nil;
    }
    _isUnwritable = NO;
    [self noteVersion];
    [self keepContent:merged];
    return _content;
}

@end
