// Where the application's bundle keeps its extensions, and which preferences an administrator has set.

#include "Recording.h"

#include "gnustep/runtime/MethodReplacement.h"

#import <Foundation/Foundation.h>

namespace {

using tarnwick::standins::answers;

NSString *toText(const std::string &text) {
    return [NSString stringWithUTF8String:text.c_str()];
}

NSString *plugInsFolder(id, SEL) {
    return answers().plugInsFolder ? toText(*answers().plugInsFolder) : nil;
}

} // namespace

@interface NSBundle (StandIn)
@end

@implementation NSBundle (StandIn)

+ (void)load {
    TNReplaceMethod(self, @selector(builtInPlugInsPath), plugInsFolder);
}

@end

@implementation NSUserDefaults (StandIn)

- (BOOL)objectIsForcedForKey:(NSString *)key {
    tarnwick::standins::record(@"objectIsForcedForKey(%@)", key);
    return [key isEqualToString:toText(answers().forcedKey)];
}

@end
