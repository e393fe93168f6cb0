// Missing: suites of NSUserDefaults, as of GNUstep Base 1.28. Its persistent domains share one lock, and
// their changes wait for half a minute.

#import "gnustep/defaults/SuiteDefaults.h"

#import "gnustep/defaults/PropertyListValues.h"
#import "gnustep/defaults/SuiteState.h"

void TNWriteAllSuites() {
    [TNSuiteState writeAll];
}

@implementation TNSuiteDefaults

/// Without `super`, whose `init` sets up the domains of a user.
- (instancetype)initWithState:(TNSuiteState *)state {
    _state = [state retain];
    return self;
}

- (void)dealloc {
    [_state release];
    [super dealloc];
}

- (id)objectForKey:(NSString *)key {
    return [[_state values] objectForKey:key];
}

- (void)setObject:(id)value forKey:(NSString *)key {
    id copy = nil;
    if (value) {
        copy = TNFrozenCopy(value);
        if (!copy) {
            [NSException raise:NSInvalidArgumentException format:@"The value of %@ is no property list", key];
        }
    }
    if (TNIsSamePropertyList(copy, [self objectForKey:key])) {
        return;
    }
    [self willChangeValueForKey:key];
    [_state setValue:copy ofKey:key];
    [self didChangeValueForKey:key];
    [[NSNotificationCenter defaultCenter] postNotificationName:NSUserDefaultsDidChangeNotification
                                                        object:self];
}

- (void)removeObjectForKey:(NSString *)key {
    [self setObject:nil forKey:key];
}

- (id)valueForKey:(NSString *)key {
    return [self objectForKey:key];
}

- (void)setValue:(id)value forKey:(NSString *)key {
    [self setObject:value forKey:key];
}

- (NSDictionary *)dictionaryRepresentation {
    return [_state values];
}

- (BOOL)synchronize {
    return [_state write];
}

- (NSString *)description {
    return [[_state values] description];
}

@end

@implementation NSUserDefaults (TNSuites)

- (instancetype)initWithSuiteName:(NSString *)name {
    [self release];
    // The standard domain's file has its own rules.
    const bool isSuite = [name length] > 0 && [name rangeOfString:@"/"].location == NSNotFound &&
                         ![name isEqualToString:[[NSProcessInfo processInfo] processName]];
    return isSuite ? (id)[[TNSuiteDefaults alloc] initWithState:[TNSuiteState stateOfSuite:name]] : nil;
}

@end
