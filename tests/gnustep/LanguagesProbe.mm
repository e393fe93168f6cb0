#include "LanguagesProbe.h"

#include "Files.h"
#include "Probe.h"

#import "gnustep/start/Languages.h"

#import <Foundation/Foundation.h>

#include <sys/stat.h>

namespace tarnwick::probe {

namespace {

std::vector<std::string> strings(NSArray *array) {
    std::vector<std::string> all;
    for (NSString *string in array) {
        all.emplace_back([string UTF8String]);
    }
    return all;
}

} // namespace

std::vector<std::string> languagesAfterStartUp() {
    @autoreleasepool {
        startUp();
        return strings([[NSUserDefaults standardUserDefaults] stringArrayForKey:@"NSLanguages"]);
    }
}

std::vector<std::string> languagesForCode(const std::string &code) {
    @autoreleasepool {
        return strings(
            TNLanguagesForCodes([NSArray arrayWithObject:[NSString stringWithUTF8String:code.c_str()]]));
    }
}

std::string greetingFromTables(const std::vector<std::string> &tables) {
    @autoreleasepool {
        const std::string folder = libraryFolder() + "/Greeting.bundle";
        for (const auto &step : {folder, folder + "/Resources"}) {
            mkdir(step.c_str(), 0700);
        }
        for (const auto &language : tables) {
            const std::string table = folder + "/Resources/" + language + ".lproj";
            mkdir(table.c_str(), 0700);
            writeContent(table + "/Localizable.strings", "\xEF\xBB\xBF\"Hello\" = \"" + language + "\";\n");
        }
        startUp();
        NSBundle *bundle = [NSBundle bundleWithPath:[NSString stringWithUTF8String:folder.c_str()]];
        return [[bundle localizedStringForKey:@"Hello" value:@"" table:nil] UTF8String];
    }
}

} // namespace tarnwick::probe
