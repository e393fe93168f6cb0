#pragma once

#import <Foundation/Foundation.h>

@class TNSuiteState;

/// A named domain of its own file, `<defaults folder>/<suite>.plist`, as `initWithSuiteName:` gives it.
/// Setting changes memory; `synchronize` writes, and so does a timer about a second later and the end of the
/// program. What other programs write is seen at `synchronize`.
@interface TNSuiteDefaults : NSUserDefaults {
@private
    TNSuiteState *_state;
}
@end

/// Writes what handles of suites have not written yet.
void TNWriteAllSuites();
