#pragma once

#import <Foundation/Foundation.h>

/// A property list file that several programs change at a time: whoever writes merges its own changes into
/// what is there, under a lock, and replaces the file as a whole.
@interface TNSuiteFile : NSObject {
@private
    NSString *_path;
    NSDictionary *_content;
    unsigned long _device;
    unsigned long _inode;
    long _modifiedSeconds;
    long _modifiedNanoseconds;
    BOOL _wasRead;
    BOOL _isUnwritable;
}

- (instancetype)initWithPath:(NSString *)path;

/// The content, when it is not the one read or written last; nil when it is the same. No file is an empty
/// content. A file that cannot be read is moved aside first.
- (NSDictionary *)changedContent;

/// Merges `changes` into the file's content, NSNull for a removed key, and gives the result; nil when it
/// cannot be written: the file is the old one then. The first failure after a success writes a log line.
/// Writes nothing when the content stays the same.
- (NSDictionary *)contentByMerging:(NSDictionary *)changes;

@end
