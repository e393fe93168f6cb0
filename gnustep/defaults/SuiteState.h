#pragma once

#import <Foundation/Foundation.h>

@class TNSuiteFile;

/// What this process knows of a suite: one for a name, shared by all of its handles and never freed.
@interface TNSuiteState : NSObject {
@private
    TNSuiteFile *_file;
    NSMutableDictionary *_values;
    NSMutableDictionary *_changes;
    BOOL _writeIsScheduled;
}

/// The state of that name; made on first use.
+ (TNSuiteState *)stateOfSuite:(NSString *)name;
+ (void)writeAll;

/// The file as it is now with this process's unwritten changes on top.
- (NSDictionary *)values;
/// A nil value removes the key. Schedules writing.
- (void)setValue:(id)value ofKey:(NSString *)key;
/// Writes the changes, if there are any; NO when that failed, and they stay unwritten.
- (BOOL)write;

@end
