#include "Recording.h"

#import "adapters/foundation/StringConversion.h"

using namespace tarnwick;
using namespace tarnwick::standins;

/// An array that counts itself while it lives.
@interface StandInArray : NSArray {
    NSArray *_elements;
    StandInObject *_counted;
}
- (id)initWithElements:(NSArray *)elements;
@end

@implementation StandInArray

- (id)initWithElements:(NSArray *)elements {
    self = [super init];
    if (self) {
        _elements = [elements copy];
        _counted = [[StandInObject alloc] init];
    }
    return self;
}

/// Where the platform's `init` leads.
- (id)initWithObjects:(const id[])objects count:(NSUInteger)count {
    return self;
}

- (void)dealloc {
    [_elements release];
    [_counted release];
    [super dealloc];
}

- (NSUInteger)count {
    return [_elements count];
}

- (id)objectAtIndex:(NSUInteger)index {
    return [_elements objectAtIndex:index];
}

@end

@implementation StandInLoginItem

- (instancetype)initWithURL:(NSURL *)url {
    self = [super init];
    if (self) {
        _url = [url retain];
    }
    return self;
}

- (void)dealloc {
    [_url release];
    [super dealloc];
}

- (NSURL *)url {
    return _url;
}

@end

namespace {

NSString *nameOf(const void *object) {
    return object ? @"given" : @"none";
}

NSURL *urlOf(const std::string &path) {
    return [NSURL fileURLWithPath:toNSString(path)];
}

LSSharedFileListItemRef newItem(const LoginItem &item) {
    return (LSSharedFileListItemRef)[[StandInLoginItem alloc] initWithURL:item ? urlOf(*item) : nil];
}

} // namespace

CFStringRef kLSSharedFileListSessionLoginItems = (CFStringRef) @"session login items";
LSSharedFileListItemRef kLSSharedFileListItemLast = newItem(std::nullopt);

CFArrayRef LSCopyApplicationURLsForBundleIdentifier(CFStringRef bundleIdentifier, CFErrorRef *error) {
    record(@"LSCopyApplicationURLsForBundleIdentifier(%@)", (NSString *)bundleIdentifier);
    if (answers().launchServicesFail && error) {
        *error = (CFErrorRef)(CFTypeRef)[[StandInObject alloc] init];
    }
    if (!answers().registeredCopies) {
        return nullptr;
    }
    NSMutableArray *urls = [NSMutableArray array];
    for (const auto &path : *answers().registeredCopies) {
        [urls addObject:urlOf(path)];
    }
    return (CFArrayRef)[[StandInArray alloc] initWithElements:urls];
}

LSSharedFileListRef LSSharedFileListCreate(CFAllocatorRef, CFStringRef listType, CFTypeRef) {
    record(@"LSSharedFileListCreate(%@)", (NSString *)listType);
    return answers().sessionListExists ? (LSSharedFileListRef)[[StandInObject alloc] init] : nullptr;
}

CFArrayRef LSSharedFileListCopySnapshot(LSSharedFileListRef, UInt32 *seed) {
    record(@"LSSharedFileListCopySnapshot()");
    if (!answers().snapshotExists) {
        return nullptr;
    }
    if (seed) {
        *seed = 7;
    }
    NSMutableArray *items = [NSMutableArray array];
    for (const auto &item : answers().loginItems) {
        [items addObject:[(id)newItem(item) autorelease]];
    }
    return (CFArrayRef)[[StandInArray alloc] initWithElements:items];
}

LSSharedFileListItemRef LSSharedFileListInsertItemURL(LSSharedFileListRef,
    LSSharedFileListItemRef insertAfter, CFStringRef displayName, IconRef icon, CFURLRef url,
    CFDictionaryRef setting, CFArrayRef clearing) {
    record(@"LSSharedFileListInsertItemURL(%@, name %@, icon %@, %@, properties %@ and %@)",
        insertAfter == kLSSharedFileListItemLast ? @"last" : @"elsewhere", nameOf(displayName), nameOf(icon),
        [(NSURL *)url path], nameOf(setting), nameOf(clearing));
    return answers().snapshotExists ? newItem(toString([(NSURL *)url path])) : nullptr;
}

CFURLRef LSSharedFileListItemCopyResolvedURL(
    LSSharedFileListItemRef item, LSSharedFileListResolutionFlags flags, CFErrorRef *) {
    NSURL *url = [(StandInLoginItem *)item url];
    record(@"LSSharedFileListItemCopyResolvedURL(%@, %u)", url ? [url path] : @"gone", flags);
    return (CFURLRef)[url retain];
}

OSStatus LSSharedFileListItemRemove(LSSharedFileListRef, LSSharedFileListItemRef item) {
    record(@"LSSharedFileListItemRemove(%@)", [[(StandInLoginItem *)item url] path]);
    return 0;
}
