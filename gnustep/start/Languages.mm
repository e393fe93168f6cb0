// Missing: the languages as macOS names them, as of GNUstep Base 1.28. It turns LANGUAGE=de into "German" and
// finds `de.lproj` by that, but knows nothing of AppleLanguages, takes "zh-Hans", "zh_HK" and plain "zh" for
// no language that there is a table of, and LANG for English unless the C library has that locale installed.

#import "gnustep/start/Languages.h"

#import <Foundation/Foundation.h>

#import "gnustep/start/PrimaryDefaults.h"

#include <cstdlib>

namespace {

/// GNUstep's names: its own tables, those of the open panel for one, are found by them alone.
const struct {
    NSString *code;
    NSString *name;
} names[] = {
    {@"de", @"German"},
    {@"en", @"English"},
    {@"es", @"Spanish"},
    {@"fr", @"French"},
    {@"ja", @"Japanese"},
    {@"zh-Hans", @"SimplifiedChinese"},
    {@"zh-Hant", @"TraditionalChinese"},
};

/// "zh-Hant" for everything written in those characters, else the language without script and region.
NSString *tableCode(NSString *code) {
    NSString *plain =
        [[code componentsSeparatedByCharactersInSet:[NSCharacterSet characterSetWithCharactersInString:@".@"]]
            objectAtIndex:0];
    NSArray *parts = [[plain stringByReplacingOccurrencesOfString:@"_"
                                                       withString:@"-"] componentsSeparatedByString:@"-"];
    NSString *language = [[parts objectAtIndex:0] lowercaseString];
    if (![language isEqualToString:@"zh"]) {
        return language;
    }
    if ([parts containsObject:@"Hans"]) {
        return @"zh-Hans";
    }
    for (NSString *traditional in [NSArray arrayWithObjects:@"Hant", @"TW", @"HK", @"MO", nil]) {
        if ([parts containsObject:traditional]) {
            return @"zh-Hant";
        }
    }
    return @"zh-Hans";
}

NSString *nameOf(NSString *code) {
    for (const auto &entry : names) {
        if ([entry.code isEqualToString:code]) {
            return entry.name;
        }
    }
    return nil;
}

void addOnce(NSMutableArray *list, NSString *value) {
    if (value && ![list containsObject:value]) {
        [list addObject:value];
    }
}

/// In the order of the C library; LANGUAGE holds several, separated by colons.
NSArray *codesOfEnvironment() {
    for (const char *variable : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char *value = std::getenv(variable);
        if (value && *value) {
            return [[NSString stringWithUTF8String:value] componentsSeparatedByString:@":"];
        }
    }
    return [NSArray array];
}

/// Whether the user has set GNUstep's default: without that it is there all the same, made up.
bool userHasSetNSLanguages(NSUserDefaults *defaults) {
    NSString *program = [[NSProcessInfo processInfo] processName];
    if ([[defaults volatileDomainForName:NSArgumentDomain] objectForKey:@"NSLanguages"]) {
        return true;
    }
    for (NSString *domain in [NSArray arrayWithObjects:program, NSGlobalDomain, nil]) {
        if ([[defaults persistentDomainForName:domain] objectForKey:@"NSLanguages"]) {
            return true;
        }
    }
    return false;
}

} // namespace

NSArray *TNLanguagesForCodes(NSArray *codes) {
    NSMutableArray *languages = [NSMutableArray array];
    for (NSString *code in codes) {
        NSString *table = tableCode(code);
        // "C" and "POSIX" are no languages.
        if ([table length] > 0 && ![table isEqualToString:@"c"] && ![table isEqualToString:@"posix"]) {
            addOnce(languages, table);
            addOnce(languages, nameOf(table));
        }
    }
    addOnce(languages, @"en");
    addOnce(languages, @"English");
    return languages;
}

bool TNLanguageUsesHanCharacters(NSArray *languages) {
    NSString *first = [languages count] > 0 ? tableCode([languages objectAtIndex:0]) : @"";
    return [first isEqualToString:@"ja"] || [first hasPrefix:@"zh"] || [first hasSuffix:@"chinese"] ||
           [first isEqualToString:@"japanese"];
}

NSString *TNHanFontForLanguages(NSArray *languages) {
    NSString *first = [languages count] > 0 ? [languages objectAtIndex:0] : @"";
    if ([first isEqualToString:@"ja"] || [first isEqualToString:@"Japanese"]) {
        return @"NotoSansCJKjp";
    }
    if ([first isEqualToString:@"zh-Hant"] || [first isEqualToString:@"TraditionalChinese"]) {
        return @"NotoSansCJKtc";
    }
    return @"NotoSansCJKsc";
}

void TNUseLanguagesOfUser() {
    NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
    if (userHasSetNSLanguages(defaults)) {
        return;
    }
    id chosen = [defaults objectForKey:@"AppleLanguages"];
    NSArray *codes = [chosen isKindOfClass:[NSArray class]] ? chosen : codesOfEnvironment();
    // Before those that GNUstep has found itself.
    TNSetPrimaryDefaults([NSDictionary dictionaryWithObject:TNLanguagesForCodes(codes)
                                                     forKey:@"NSLanguages"]);
}
