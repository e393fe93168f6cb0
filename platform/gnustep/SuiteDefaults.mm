// Missing: suites of NSUserDefaults, as of GNUstep Base 1.28. Its persistent domains share one lock, and
// their changes wait for half a minute.

#import "SuiteDefaults.h"

#import "SuiteState.h"

namespace {

id frozenCopy(id value);

NSArray *frozenArray(NSArray *array) {
    NSMutableArray *copy = [NSMutableArray arrayWithCapacity:[array count]];
    for (id element in array) {
        id frozen = frozenCopy(element);
        if (!frozen) {
            return nil;
        }
        [copy addObject:frozen];
    }
    return copy;
}

NSDictionary *frozenDictionary(NSDictionary *dictionary) {
    NSMutableDictionary *copy = [NSMutableDictionary dictionaryWithCapacity:[dictionary count]];
    for (id key in dictionary) {
        id frozen = frozenCopy([dictionary objectForKey:key]);
        if (!frozen || ![key isKindOfClass:[NSString class]]) {
            return nil;
        }
        [copy setObject:frozen forKey:key];
    }
    return copy;
}

/// A copy that nothing the caller may change is part of; nil when the value is no property list. Linear in
/// the number of objects: serialising and parsing, the other way to copy, is quadratic in GNUstep.
id frozenCopy(id value) {
    if ([value isKindOfClass:[NSArray class]]) {
        return frozenArray(value);
    }
    if ([value isKindOfClass:[NSDictionary class]]) {
        return frozenDictionary(value);
    }
    const bool isPropertyList = [value isKindOfClass:[NSString class]] ||
                                [value isKindOfClass:[NSNumber class]] ||
                                [value isKindOfClass:[NSData class]] || [value isKindOfClass:[NSDate class]];
    return isPropertyList ? [[value copy] autorelease] : nil;
}

/// Equal, and of the same kind: a boolean differs from a number.
bool isSameValue(id one, id other) {
    if (one == other) {
        return true;
    }
    if ([one isKindOfClass:[NSNumber class]] && [other isKindOfClass:[NSNumber class]]) {
        return *[one objCType] == *[other objCType] && [one class] == [other class] && [one isEqual:other];
    }
    // Collections may differ in the kind of a number inside.
    return [one isKindOfClass:[NSString class]] && [one isEqual:other];
}

} // namespace

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
        copy = frozenCopy(value);
        if (!copy) {
            [NSException raise:NSInvalidArgumentException format:@"The value of %@ is no property list", key];
        }
    }
    if (isSameValue(copy, [self objectForKey:key])) {
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
