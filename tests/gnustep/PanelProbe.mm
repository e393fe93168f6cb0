#include "PanelProbe.h"

#include "Probe.h"

#import "tests/driving/Driving.h"

#include <functional>

namespace tarnwick::probe {

namespace {

NSString *text(const std::string &string) {
    return [NSString stringWithUTF8String:string.c_str()];
}

NSButton *buttonWithTag(NSWindow *panel, NSInteger tag) {
    return (NSButton *)[[panel contentView] viewWithTag:tag];
}

bool standApart(NSWindow *panel) {
    const NSInteger tags[] = {
        NSFileHandlingPanelHomeButton, NSFileHandlingPanelCancelButton, NSFileHandlingPanelOKButton};
    double right = 0;
    for (const auto tag : tags) {
        const NSRect frame = [buttonWithTag(panel, tag) frame];
        if (NSMinX(frame) < right) {
            return false;
        }
        right = NSMaxX(frame);
    }
    return right <= NSWidth([[panel contentView] bounds]);
}

PanelTexts textsOf(NSSavePanel *panel) {
    NSView *field = driving::firstView([panel contentView], [panel](NSView *view) {
        return [view isKindOfClass:[NSTextField class]] && [[panel message] length] > 0 &&
               [[(NSTextField *)view stringValue] isEqualToString:[panel message]];
    });
    return {[[buttonWithTag(panel, NSFileHandlingPanelOKButton) title] UTF8String],
        [[panel message] UTF8String],
        [[panel nameFieldLabel] UTF8String],
        [[panel title] UTF8String],
        field && !NSIsEmptyRect([field visibleRect]),
        standApart(panel)};
}

/// Runs the delayed start of a panel, whose loop then looks at the condition until it has passed.
void runPanel(const std::function<void()> &whenUp) {
    NSTimer *timer = [NSTimer timerWithTimeInterval:0.1
                                             target:[NSBlockOperation blockOperationWithBlock:^{
                                                 whenUp();
                                             }]
                                           selector:@selector(main)
                                           userInfo:nil
                                            repeats:NO];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSModalPanelRunLoopMode];
    driving::settle();
}

NSBitmapImageRep *pixelsOf(NSView *view, NSRect rect) {
    [view lockFocus];
    NSBitmapImageRep *pixels = [[[NSBitmapImageRep alloc] initWithFocusedViewRect:rect] autorelease];
    [view unlockFocus];
    return pixels;
}

CGFloat brightnessOf(NSBitmapImageRep *pixels, NSInteger x, NSInteger y) {
    return [[[pixels colorAtX:x y:y] colorUsingColorSpaceName:NSCalibratedWhiteColorSpace] whiteComponent];
}

int inkOf(NSView *view, NSRect rect) {
    NSBitmapImageRep *pixels = pixelsOf(view, rect);
    // The icon is left of the name.
    constexpr NSInteger iconWidth = 20;
    const double background = brightnessOf(pixels, [pixels pixelsWide] - 30, [pixels pixelsHigh] / 2);
    int ink = 0;
    for (NSInteger y = 1; y < [pixels pixelsHigh] - 1; ++y) {
        for (NSInteger x = iconWidth; x < [pixels pixelsWide] - 30; ++x) {
            ink += background - brightnessOf(pixels, x, y) > 0.3 ? 1 : 0;
        }
    }
    return ink;
}

/// The title of a default button is white.
int whitePixelsOf(NSButton *button) {
    [[button window] display];
    NSBitmapImageRep *pixels = pixelsOf(button, NSInsetRect([button bounds], 4, 4));
    int white = 0;
    for (NSInteger y = 0; y < [pixels pixelsHigh]; ++y) {
        for (NSInteger x = 0; x < [pixels pixelsWide]; ++x) {
            white += brightnessOf(pixels, x, y) > 0.9 ? 1 : 0;
        }
    }
    return white;
}

} // namespace

PanelTexts givenTexts(const std::string &title, const std::string &message, const std::string &prompt) {
    @autoreleasepool {
        startUp();
        NSSavePanel *panel = [NSSavePanel savePanel];
        [panel setTitle:text(title)];
        [panel setMessage:text(message)];
        [panel setPrompt:text(prompt)];
        return textsOf(panel);
    }
}

PanelTexts textsOfNextPanel() {
    @autoreleasepool {
        return textsOf([NSSavePanel savePanel]);
    }
}

std::pair<int, int> promptPixels(const std::string &prompt) {
    @autoreleasepool {
        startUp();
        std::pair<int, int> pixels;
        NSSavePanel *panel = [NSSavePanel savePanel];
        [panel setPrompt:text(prompt)];
        [panel setNameFieldStringValue:@"Name"];
        [panel beginWithCompletionHandler:^(NSInteger){
        }];
        runPanel([panel, &pixels] {
            constexpr double spare = 40;
            NSButton *button = buttonWithTag(panel, NSFileHandlingPanelOKButton);
            pixels.first = whitePixelsOf(button);
            [button setFrame:NSInsetRect([button frame], -spare, 0)];
            pixels.second = whitePixelsOf(button);
            [panel cancel:nil];
        });
        return pixels;
    }
}

SaveAnswer saveAs(const std::string &folder, const std::string &name, const std::string &type) {
    @autoreleasepool {
        startUp();
        __block SaveAnswer result;
        NSSavePanel *panel = [NSSavePanel savePanel];
        [panel setAllowedFileTypes:[NSArray arrayWithObject:text(type)]];
        [panel setDirectoryURL:[NSURL fileURLWithPath:text(folder) isDirectory:YES]];
        [panel setNameFieldStringValue:text(name)];
        [panel beginWithCompletionHandler:^(NSInteger answer) {
            result.answer = answer;
            ++result.answers;
            result.path = [[[panel URL] path] UTF8String];
        }];
        result.beganAtOnce = result.answers == 0 && ![panel isVisible];
        SaveAnswer *const given = &result;
        runPanel([panel, given] {
            NSButton *button = buttonWithTag(panel, NSFileHandlingPanelOKButton);
            given->buttonWasEnabled = [button isEnabled];
            [button performClick:nil];
            if ([panel isVisible]) {
                [panel cancel:nil];
            }
        });
        return result;
    }
}

TypedFolder typeFolderForName(const std::string &folder, const std::string &name) {
    @autoreleasepool {
        startUp();
        TypedFolder result;
        NSSavePanel *panel = [NSSavePanel savePanel];
        [panel setDirectoryURL:[NSURL fileURLWithPath:@"/" isDirectory:YES]];
        [panel setNameFieldStringValue:text(name)];
        [panel beginWithCompletionHandler:^(NSInteger){
        }];
        runPanel([panel, &result, &folder] {
            [panel setNameFieldStringValue:text(folder)];
            [buttonWithTag(panel, NSFileHandlingPanelOKButton) performClick:nil];
            result.panelStays = [panel isVisible];
            result.shownFolder = [[panel directory] UTF8String];
            result.name = [[panel nameFieldStringValue] UTF8String];
            [panel cancel:nil];
        });
        return result;
    }
}

HiddenExtension chooseOnlyFile(const std::string &folder, bool hidesExtension) {
    @autoreleasepool {
        startUp();
        HiddenExtension result;
        NSOpenPanel *panel = [NSOpenPanel openPanel];
        [panel setExtensionHidden:hidesExtension];
        [panel setDirectoryURL:[NSURL fileURLWithPath:text(folder) isDirectory:YES]];
        [panel beginWithCompletionHandler:^(NSInteger){
        }];
        runPanel([panel, &result] {
            NSBrowser *browser = (NSBrowser *)[[panel contentView] viewWithTag:NSFileHandlingPanelBrowser];
            const NSInteger column = [browser lastColumn];
            NSMatrix *files = [browser matrixInColumn:column];
            [panel display];
            result.ink = inkOf(files, [files cellFrameAtRow:0 column:0]);
            [browser selectRow:0 inColumn:column];
            [browser sendAction];
            result.nameField = [[panel nameFieldStringValue] UTF8String];
            [panel ok:nil];
        });
        result.chosenPath = [[[[panel URLs] objectAtIndex:0] path] UTF8String];
        return result;
    }
}

PanelLayout layoutOfOpenPanel(const std::string &folder) {
    @autoreleasepool {
        startUp();
        PanelLayout layout;
        NSOpenPanel *panel = [NSOpenPanel openPanel];
        [panel setDirectoryURL:[NSURL fileURLWithPath:text(folder) isDirectory:YES]];
        [panel beginWithCompletionHandler:^(NSInteger){
        }];
        runPanel([panel, &layout] {
            NSView *content = [panel contentView];
            const auto isAtTheLeft = [content](NSInteger tag) {
                return NSMidX([[content viewWithTag:tag] frame]) < NSMidX([content bounds]);
            };
            layout.iconIsAtTheLeft = isAtTheLeft(NSFileHandlingPanelImageButton);
            layout.titleIsAtTheLeft = isAtTheLeft(NSFileHandlingPanelTitleField);
            layout.defaultButtonIsAtTheLeft = isAtTheLeft(NSFileHandlingPanelOKButton);
            NSForm *form = (NSForm *)[content viewWithTag:NSFileHandlingPanelForm];
            const NSRect field = [[form cellAtIndex:0] drawingRectForBounds:[form bounds]];
            layout.labelIsLeftOfItsField = NSMidX(field) > NSMidX([form bounds]);
            layout.nameLabel = [[panel nameFieldLabel] UTF8String];
            NSBrowser *browser = (NSBrowser *)[content viewWithTag:NSFileHandlingPanelBrowser];
            const NSInteger first = [browser firstVisibleColumn];
            layout.columnsGoOnToTheRight =
                NSMinX([browser frameOfColumn:first]) < NSMinX([browser frameOfColumn:first + 1]);
            layout.titlesGoOnToTheRight =
                NSMinX([browser titleFrameOfColumn:first]) < NSMinX([browser titleFrameOfColumn:first + 1]);
            NSScroller *scroller = (NSScroller *)driving::firstView(browser, [browser](NSView *view) {
                return [view isKindOfClass:[NSScroller class]] && [view superview] == browser;
            });
            layout.scrollerEndsAtTheRight = [scroller floatValue] > 0.5;
            const auto goesBack = [browser](SEL key) {
                [[browser window] makeFirstResponder:browser];
                const NSInteger before = [browser selectedColumn];
                [browser performSelector:key withObject:nil];
                return [browser selectedColumn] < before;
            };
            layout.leftKeyGoesBack = goesBack(@selector(moveLeft:));
            layout.rightKeyGoesBack = goesBack(@selector(moveRight:));
            [panel cancel:nil];
        });
        return layout;
    }
}

std::string beginningOf(const std::string &folder) {
    @autoreleasepool {
        startUp();
        NSSavePanel *panel = [NSSavePanel savePanel];
        [panel setDirectoryURL:[NSURL fileURLWithPath:text(folder) isDirectory:YES]];
        return [[panel directory] UTF8String];
    }
}

bool cutsColumnTitlesInTheMiddle() {
    @autoreleasepool {
        startUp();
        NSCell *title = [[[NSClassFromString(@"GSBrowserTitleCell") alloc] initTextCell:@""] autorelease];
        return [title lineBreakMode] == NSLineBreakByTruncatingMiddle;
    }
}

bool cutsOtherTextsInTheMiddle() {
    @autoreleasepool {
        startUp();
        NSCell *cell = [[[NSTextFieldCell alloc] initTextCell:@""] autorelease];
        return [cell lineBreakMode] == NSLineBreakByTruncatingMiddle;
    }
}

std::string homeFolder() {
    return [NSHomeDirectory() UTF8String];
}

} // namespace tarnwick::probe
