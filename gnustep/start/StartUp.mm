// Missing: what a program on macOS finds prepared, as of GNUstep Base 1.28 and GUI 0.29: they name the
// defaults file after the executable, know no fonts for Chinese text, and make a plain application object.

#import "TNStartUp.h"

#import "TNApplication.h"
#import "gnustep/defaults/DefaultsFiles.h"
#import "gnustep/defaults/DefaultsSchedule.h"
#import "gnustep/events/EventPump.h"
#import "gnustep/events/Exceptions.h"
#import "gnustep/events/ForeignDrags.h"
#import "gnustep/events/Signals.h"
#import "gnustep/start/Languages.h"
#import "gnustep/start/LayoutDirection.h"
#import "gnustep/start/Paths.h"
#import "gnustep/start/PrimaryDefaults.h"
#import "gnustep/start/Workspace.h"
#import "gnustep/theme/ImageReaders.h"
#import "gnustep/theme/TallLines.h"
#import "gnustep/theme/WideCharacters.h"
#import "gnustep/windows/DialogWindows.h"
#import "gnustep/windows/FrameOffsets.h"
#import "gnustep/windows/WindowActivation.h"

#include <cstdlib>

namespace {

void prepareDefaultsFile(NSString *domain) {
    TNRemoveStaleLocks();
    // Only to have a damaged file out of the way before it would be overwritten.
    TNReadSettingsFile(TNSettingsFileOf(domain));
}

/// What the window is laid out for, whatever a user has set for all programs of GNUstep, most of which look
/// another way: with larger letters texts would be cut, and elsewhere the menu bar has no theme. `han` is the
/// font of Chinese characters, without its weight.
NSDictionary *lookOfProgram(NSArray *languages, NSString *han) {
    // Latin letters beside Chinese characters come from their font too: otherwise these would never be bold,
    // and sit lower than the rest of the line.
    const bool inHan = TNLanguageUsesHanCharacters(languages);
    NSString *regular = inHan ? [han stringByAppendingString:@"-Regular"] : @"Inter-Regular";
    NSString *bold = inHan ? [han stringByAppendingString:@"-Bold"] : @"Inter-Bold";
    NSMutableDictionary *values = [NSMutableDictionary dictionary];
    for (NSString *key in
        [NSArray arrayWithObjects:@"NSFont", @"NSLabelFont", @"NSMessageFont", @"NSMenuFont",
                 @"NSControlContentFont", @"NSUserFont", @"NSToolTipsFont", nil]) {
        [values setObject:regular forKey:key];
    }
    [values setObject:bold forKey:@"NSBoldFont"];
    [values setObject:bold forKey:@"NSTitleBarFont"];
    [values setObject:@"13" forKey:@"NSFontSize"];
    [values setObject:@"12" forKey:@"NSToolTipsFontSize"];
    // Letters as they are drawn, a whole number of points wide.
    [values setObject:@"33" forKey:@"GSFontHinting"];
    [values setObject:@"YES" forKey:@"GSScrollViewNoInnerBorder"];
    [values setObject:@"YES" forKey:@"GSSuppressAppIcon"];
    // A window that is minimised is left to the window manager, which lists it with the others.
    [values setObject:@"NO" forKey:@"GSAppOwnsMiniwindow"];
    [values setObject:@"NSMacintoshInterfaceStyle" forKey:@"NSInterfaceStyleDefault"];
    // The one has its scrollers at the right, the other at the left.
    [values setObject:TNReadsFromRightToLeft() ? @"NSNextStepInterfaceStyle" : @"NSMacintoshInterfaceStyle"
               forKey:@"NSScrollViewInterfaceStyle"];
    // The menu bar stands in the window.
    [values setObject:@"NSWindows95InterfaceStyle" forKey:@"NSMenuInterfaceStyle"];
    // Report, instead of dropping, what event handlers raise.
    [values setObject:@"1" forKey:@"NSExceptionHandlerMask"];
    return values;
}

void registerInitialDefaults() {
    // Times ten points, which would be no more than a third of a row.
    [[NSUserDefaults standardUserDefaults]
        registerDefaults:[NSDictionary dictionaryWithObject:@"5" forKey:@"GSMouseScrollMultiplier"]];
}

/// What is still only in memory when the program ends goes to its files.
void writeDefaultsAtExit() {
    @autoreleasepool {
        TNWriteAllDefaults();
    }
}

} // namespace

void TNPrepareProcess(const TNProgram &program) {
    @autoreleasepool {
        [[NSProcessInfo processInfo] setProcessName:program.identifier];
        TNUseUnixPaths();
        prepareDefaultsFile(program.identifier);
        TNUseLanguagesOfUser();
        NSArray *languages = [[NSUserDefaults standardUserDefaults] stringArrayForKey:@"NSLanguages"];
        NSString *han = TNHanFontForLanguages(languages);
        TNSetPrimaryDefaults(lookOfProgram(languages, han));
        registerInitialDefaults();
        TNWriteDefaultsPromptly();
        std::atexit(writeDefaultsAtExit);
        TNUseBitmapReadersOnly();
        [TNApplication sharedApplication];
        TNInstallEventPump();
        TNInstallDialogWindows();
        TNInstallFrameOffsets();
        TNInstallWindowActivation();
        TNInstallForeignDrags();
        TNInstallSignalHandling();
        TNInstallExceptionReporting(
            program.endsAtExceptions ? TNAfterException::ends : TNAfterException::goesOn);
        TNUseOpener(program.opener);
        // Before any text is drawn: a failed substitution of a character is remembered for the whole run.
        NSString *const everythingElse = @"DejaVuSans";
        NSString *hanRegular = [han stringByAppendingString:@"-Regular"];
        [NSFont setPreferredFontNames:[NSArray arrayWithObjects:hanRegular, everythingElse, nil]];
        TNLowerTallLines();
        TNUseFontsForWideCharacters(
            [NSArray arrayWithObjects:@"NotoColorEmoji", hanRegular, everythingElse, nil]);
        TNInstallTheme();
    }
}
