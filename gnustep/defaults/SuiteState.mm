#import "gnustep/defaults/SuiteState.h"

#import "gnustep/defaults/DefaultsFiles.h"
#import "gnustep/defaults/SuiteFile.h"
#import "gnustep/runtime/RunLoopModes.h"

#import <AppKit/AppKit.h>

namespace {

constexpr NSTimeInterval writeDelay = 1;

NSMutableDictionary *statesByName() {
    static NSMutableDictionary *const states = [[NSMutableDictionary alloc] init];
    return states;
}

} // namespace

@implementation TNSuiteState

- (instancetype)initWithName:(NSString *)name {
    self = [super init];
    if (self) {
        _file = [[TNSuiteFile alloc] initWithPath:TNSettingsFileOf(name)];
        _values = [[NSMutableDictionary alloc] init];
        _changes = [[NSMutableDictionary alloc] init];
    }
    return self;
}

- (void)dealloc {
    [_file release];
    [_values release];
    [_changes release];
    [super dealloc];
}

+ (TNSuiteState *)stateOfSuite:(NSString *)name {
    @synchronized(self) {
        TNSuiteState *state = [statesByName() objectForKey:name];
        if (!state) {
            state = [[[TNSuiteState alloc] initWithName:name] autorelease];
            [statesByName() setObject:state forKey:name];
        }
        return state;
    }
}

+ (void)writeAll {
    @synchronized(self) {
        for (NSString *name in statesByName()) {
            [[statesByName() objectForKey:name] write];
        }
    }
}

- (void)applyValue:(id)value ofKey:(NSString *)key {
    if (value == [NSNull null]) {
        [_values removeObjectForKey:key];
    } else {
        [_values setObject:value forKey:key];
    }
}

- (NSDictionary *)values {
    @synchronized(self) {
        NSDictionary *content = [_file changedContent];
        if (content) {
            [_values setDictionary:content];
            for (NSString *key in _changes) {
                [self applyValue:[_changes objectForKey:key] ofKey:key];
            }
        }
        // A value that is replaced meanwhile stays alive for whoever asked for it.
        return [[_values copy] autorelease];
    }
}

- (void)setValue:(id)value ofKey:(NSString *)key {
    @synchronized(self) {
        id change = value ? value : [NSNull null];
        [_changes setObject:change forKey:key];
        [self applyValue:change ofKey:key];
        if (!_writeIsScheduled) {
            _writeIsScheduled = YES;
            // A timer belongs to the run loop that will be running.
            [self performSelectorOnMainThread:@selector(scheduleWrite) withObject:nil waitUntilDone:NO];
        }
    }
}

- (void)scheduleWrite {
    [self performSelector:@selector(writeLater)
               withObject:nil
               afterDelay:writeDelay
                  inModes:TNWorkingModes()];
}

- (void)writeLater {
    @synchronized(self) {
        _writeIsScheduled = NO;
        [self write];
    }
}

- (BOOL)write {
    @synchronized(self) {
        if ([_changes count] == 0) {
            return YES;
        }
        NSDictionary *content = [_file contentByMerging:_changes];
        if (!content) {
            return NO;
        }
        [_values setDictionary:content];
        [_changes removeAllObjects];
        return YES;
    }
}

@end
