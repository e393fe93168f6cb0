// Missing: characters beyond U+FFFF, such as emoji, as of GNUstep GUI 0.29 and Back 0.29: no other font is
// looked for when the text's own has none, and a glyph is a number of 16 bits on its way to the screen. Here
// such a character is one glyph, of its own number, in the first of the fonts named below that has it.

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSFontInfo.h>

#import "gnustep/runtime/MethodReplacement.h"
#import "gnustep/theme/WideCharacters.h"

#include <algorithm>
#include <vector>

namespace {

using FixFonts = void (*)(id self, SEL command, NSRange range);
using Generate = void (*)(
    id self, SEL command, id storage, NSUInteger count, NSUInteger *glyph, NSUInteger *character);
using Advancement = NSSize (*)(id self, SEL command, NSGlyph glyph);
using DrawGlyphs = void (*)(id self, SEL command, const NSGlyph *glyphs, int length, void *context);
FixFonts nativeFixFonts = nullptr;
Generate nativeGenerate = nullptr;
Advancement nativeAdvancement = nullptr;
DrawGlyphs nativeDrawGlyphs = nullptr;

NSArray *fontNames = nil;

bool isHigh(unichar unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLow(unichar unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

NSGlyph characterOf(unichar high, unichar low) {
    return 0x10000U + ((high & 0x3FFU) << 10U) + (low & 0x3FFU);
}

NSString *textOf(NSGlyph character, NSUInteger times) {
    const unichar units[] = {static_cast<unichar>(0xD800 + ((character - 0x10000) >> 10U)),
        static_cast<unichar>(0xDC00 + (character & 0x3FFU))};
    NSMutableString *text = [NSMutableString string];
    for (NSUInteger time = 0; time < times; ++time) {
        [text appendString:[NSString stringWithCharacters:units length:2]];
    }
    return text;
}

bool hasGlyph(NSFont *font, NSGlyph character) {
    return [[font fontInfo] glyphIsEncoded:character];
}

/// Of the size of `base`; nil when none has the character.
NSFont *fontWith(NSGlyph character, NSFont *base) {
    for (NSString *name in fontNames) {
        NSFont *font = [NSFont fontWithName:name size:[base pointSize]];
        if (font && hasGlyph(font, character)) {
            return font;
        }
    }
    return nil;
}

void fixFonts(id self, SEL command, NSRange range) {
    nativeFixFonts(self, command, range);
    NSString *text = [self string];
    for (NSUInteger place = range.location; place + 1 < NSMaxRange(range); ++place) {
        const unichar high = [text characterAtIndex:place];
        const unichar low = isHigh(high) ? [text characterAtIndex:place + 1] : 0;
        if (!isLow(low)) {
            continue;
        }
        NSFont *font = [self attribute:NSFontAttributeName atIndex:place effectiveRange:nullptr];
        NSFont *base = font ? font : [NSFont userFontOfSize:0];
        if (!hasGlyph(base, characterOf(high, low))) {
            if (NSFont *other = fontWith(characterOf(high, low), base)) {
                [self addAttribute:NSFontAttributeName value:other range:NSMakeRange(place, 2)];
            }
        }
        ++place;
    }
}

/// A run of one font, in which each pair of units is one glyph.
class Glyphs {
public:
    Glyphs(id storage, NSUInteger *glyph, NSUInteger *character)
        : storage_(storage), glyph_(glyph), character_(character) {}

    void add(NSGlyph glyph, NSUInteger units) {
        glyphs_.push_back(glyph);
        units_ += units;
        if (units > 1) {
            send();
        }
    }

    /// What is sent has one glyph a unit, but for the last one.
    void send() {
        if (!glyphs_.empty()) {
            [storage_ insertGlyphs:glyphs_.data()
                                 length:glyphs_.size()
                forStartingGlyphAtIndex:*glyph_
                         characterIndex:*character_];
            *glyph_ += glyphs_.size();
            *character_ += units_;
            glyphs_.clear();
            units_ = 0;
        }
    }

private:
    id storage_;
    NSUInteger *glyph_;
    NSUInteger *character_;
    NSUInteger units_ = 0;
    std::vector<NSGlyph> glyphs_;
};

void generate(id self, SEL command, id storage, NSUInteger count, NSUInteger *glyph, NSUInteger *character) {
    std::vector<unichar> units(count);
    NSAttributedString *text = [storage attributedString];
    [[text string] getCharacters:units.data() range:NSMakeRange(*character, count)];
    if (std::none_of(units.begin(), units.end(), isHigh)) {
        nativeGenerate(self, command, storage, count, glyph, character);
        return;
    }
    NSFont *font = [text attribute:NSFontAttributeName atIndex:*character effectiveRange:nullptr];
    font = font ? font : [NSFont userFontOfSize:0];
    Glyphs glyphs(storage, glyph, character);
    for (NSUInteger place = 0; place < count; ++place) {
        const bool isPair = isHigh(units[place]) && place + 1 < count && isLow(units[place + 1]);
        const NSGlyph wanted = isPair ? characterOf(units[place], units[place + 1]) : units[place];
        if ([[NSCharacterSet controlCharacterSet] characterIsMember:units[place]]) {
            glyphs.add(NSControlGlyph, 1);
        } else {
            glyphs.add(hasGlyph(font, wanted) ? wanted : '?', isPair ? 2 : 1);
            place += isPair ? 1 : 0;
        }
    }
    glyphs.send();
}

/// A text's width is that of its ink; two of a character are wider than one by what it takes.
NSSize advancement(id self, SEL command, NSGlyph glyph) {
    if (glyph <= 0xFFFF || glyph > 0x10FFFF) {
        return nativeAdvancement(self, command, glyph);
    }
    return NSMakeSize([self widthOfString:textOf(glyph, 2)] - [self widthOfString:textOf(glyph, 1)], 0);
}

void drawGlyphs(id self, SEL command, const NSGlyph *glyphs, int length, void *context) {
    std::vector<NSGlyph> units;
    for (int place = 0; place < length; ++place) {
        if (glyphs[place] <= 0xFFFF || glyphs[place] > 0x10FFFF) {
            units.push_back(glyphs[place]);
        } else {
            NSString *text = textOf(glyphs[place], 1);
            units.push_back([text characterAtIndex:0]);
            units.push_back([text characterAtIndex:1]);
        }
    }
    nativeDrawGlyphs(self, command, units.data(), static_cast<int>(units.size()), context);
}

} // namespace

@interface NSMutableAttributedString (TNWideCharacters)
@end

@implementation NSMutableAttributedString (TNWideCharacters)

+ (void)load {
    nativeFixFonts = TNReplaceMethod(self, @selector(fixFontAttributeInRange:), fixFonts);
}

@end

@interface NSGlyphGenerator (TNWideCharacters)
@end

@implementation NSGlyphGenerator (TNWideCharacters)

+ (void)load {
    nativeGenerate = TNReplaceMethod(self,
        @selector(generateGlyphsForGlyphStorage:desiredNumberOfCharacters:glyphIndex:characterIndex:),
        generate);
}

@end

void TNUseFontsForWideCharacters(NSArray *names) {
    if (fontNames) {
        return;
    }
    // For the life of the process.
    fontNames = [names copy];
    Class fontInfo = NSClassFromString(@"CairoFontInfo");
    nativeAdvancement = TNReplaceMethod(fontInfo, @selector(advancementForGlyph:), advancement);
    nativeDrawGlyphs = TNReplaceMethod(fontInfo, @selector(drawGlyphs:length:on:), drawGlyphs);
}
