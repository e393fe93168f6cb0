// Wrong: the place of Chinese and Japanese text in its line, as of GNUstep Back 0.29: their fonts ask for
// more room above the line than their characters ever fill, and all of it is left empty, so that such a line
// stands three pixels lower than one of Latin letters. Here no font gets more than its size.

#import "gnustep/theme/TallLines.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSFontInfo.h>

#include <objc/runtime.h>

#include <algorithm>

namespace {

using Measure = CGFloat (*)(id self, SEL command);
Measure nativeAscender = nullptr;
Measure nativeLineHeight = nullptr;

CGFloat ascender(id self, SEL command) {
    return std::min(nativeAscender(self, command), static_cast<CGFloat>([self pointSize]));
}

CGFloat lineHeight(id self, SEL command) {
    const CGFloat lowered = nativeAscender(self, @selector(ascender)) - [self ascender];
    return nativeLineHeight(self, command) - lowered;
}

/// In place of a method that the class has inherited.
Measure addMethod(Class type, SEL selector, Measure function) {
    const auto inherited = reinterpret_cast<Measure>(class_getMethodImplementation(type, selector));
    class_addMethod(type, selector, reinterpret_cast<IMP>(function),
        method_getTypeEncoding(class_getInstanceMethod(type, selector)));
    return inherited;
}

} // namespace

void TNLowerTallLines() {
    if (!nativeAscender) {
        Class fontInfo = NSClassFromString(@"CairoFontInfo");
        nativeAscender = addMethod(fontInfo, @selector(ascender), ascender);
        nativeLineHeight = addMethod(fontInfo, @selector(defaultLineHeightForFont), lineHeight);
    }
}
