// Missing: the texts of panels in languages that GNUstep GUI 0.29 has no table for, Chinese among them, and
// the title of alerts in any. Here the application's own table is asked for them first.

#import <AppKit/AppKit.h>

#import "gnustep/panels/PanelLanguages.h"

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using Localized = NSString *(*)(id self, SEL command, NSString *key, NSString *value, NSString *table);
Localized nativeLocalized = nullptr;

NSBundle *toolkit() {
    static NSBundle *const bundle = [[NSBundle bundleForLibrary:@"gnustep-gui"] retain];
    return bundle;
}

/// What alerts and file panels show of their own.
bool isOfPanels(NSString *key) {
    static NSSet *const keys = [[NSSet alloc]
        initWithObjects:@"Alert", @"Cancel", @"Dismiss", @"Home", @"Name:", @"No", @"OK", @"Open", @"Replace",
        @"Save", @"Show Hidden Files", @"The directory '%@' could not be created.",
        @"The directory '%@' does not exist, do you want to create it?",
        @"The file '%@' in '%@' exists. Replace it?", @"The path '%@' is not a directory.", @"Use .%@",
        @"Yes", @"You cannot save this document with extension '.%@'.\nThe required extension is '.%@'.",
        nil];
    return [keys containsObject:key];
}

NSString *localized(id self, SEL command, NSString *key, NSString *value, NSString *table) {
    if (isOfPanels(key) && [[self bundlePath] isEqualToString:[toolkit() bundlePath]]) {
        NSString *const none = @"\n";
        NSString *own = nativeLocalized([NSBundle mainBundle], command, key, none, nil);
        if (![own isEqualToString:none]) {
            return own;
        }
    }
    return nativeLocalized(self, command, key, value, table);
}

} // namespace

NSString *TNPanelText(NSString *key) {
    return [toolkit() localizedStringForKey:key value:nil table:nil];
}

@interface NSBundle (TNPanelLanguages)
@end

@implementation NSBundle (TNPanelLanguages)

+ (void)load {
    nativeLocalized = TNReplaceMethod(self, @selector(localizedStringForKey:value:table:), localized);
}

@end
