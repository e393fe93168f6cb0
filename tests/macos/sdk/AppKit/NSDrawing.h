#pragma once

#import <AppKit/NSResponder.h>

#pragma clang assume_nonnull begin

@class NSGraphicsContext;

typedef TN_ENUM(NSUInteger, NSCompositingOperation){NSCompositingOperationSourceOver = 2};
typedef TN_ENUM(NSInteger, NSTextAlignment) {
    NSTextAlignmentLeft = 0,
#if __aarch64__
    NSTextAlignmentCenter = 1, NSTextAlignmentRight = 2,
#else
    NSTextAlignmentRight = 1, NSTextAlignmentCenter = 2,
#endif
};
typedef TN_ENUM(NSUInteger, NSLineBreakMode){
    NSLineBreakByWordWrapping = 0, NSLineBreakByTruncatingTail = 4, NSLineBreakByTruncatingMiddle = 5};

extern "C" {
extern NSString *const NSFontAttributeName;
extern NSString *const NSForegroundColorAttributeName;
extern NSString *const NSParagraphStyleAttributeName;
}

@interface NSColorSpace : NSObject
@property (class, readonly, strong) NSColorSpace *deviceRGBColorSpace;
@property (class, readonly, strong) NSColorSpace *genericGrayColorSpace;
@end

@interface NSColor : NSObject <NSCopying>
@property (class, readonly, strong) NSColor *controlTextColor;
@property (class, readonly, strong) NSColor *keyboardFocusIndicatorColor;
@property (class, readonly, strong) NSColor *secondaryLabelColor;
@property (class, readonly, strong) NSColor *textBackgroundColor;
@property (readonly) CGColorRef CGColor;
@property (readonly) CGFloat whiteComponent;
+ (NSColor *)colorWithDeviceRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
- (nullable NSColor *)colorUsingColorSpace:(NSColorSpace *)space;
- (NSColor *)colorWithAlphaComponent:(CGFloat)alpha;
- (void)set;
@end

@interface NSAppearance : NSObject
@property (class, nullable, strong) NSAppearance *currentAppearance;
@end

@interface NSBezierPath : NSObject
@property CGFloat lineWidth;
+ (NSBezierPath *)bezierPathWithRoundedRect:(NSRect)rect xRadius:(CGFloat)xRadius yRadius:(CGFloat)yRadius;
+ (void)fillRect:(NSRect)rect;
- (void)fill;
- (void)stroke;
@end

@interface NSFont : NSObject <NSCopying>
+ (NSFont *)systemFontOfSize:(CGFloat)size;
+ (NSFont *)boldSystemFontOfSize:(CGFloat)size;
@property (readonly) CGFloat pointSize;
@end

typedef TN_OPTIONS(NSUInteger, NSFontTraitMask){NSItalicFontMask = 1};

@interface NSFontManager : NSObject
@property (class, readonly, strong) NSFontManager *sharedFontManager;
- (NSFont *)convertFont:(NSFont *)font toHaveTrait:(NSFontTraitMask)trait;
- (NSFont *)convertFont:(NSFont *)font toNotHaveTrait:(NSFontTraitMask)trait;
@end

@interface NSParagraphStyle : NSObject <NSCopying>
@end
@interface NSMutableParagraphStyle : NSParagraphStyle
@property NSTextAlignment alignment;
@end

@interface NSImageRep : NSObject
@property NSSize size;
@end

@interface NSCustomImageRep : NSImageRep
- (instancetype)initWithDrawSelector:(SEL)selector delegate:(id)delegate;
@end

@interface NSImage : NSObject <NSCopying>
@property NSSize size;
@property (readonly, getter=isValid) BOOL valid;
- (void)setTemplate:(BOOL)isTemplate;
@property (nullable, readonly, copy) NSData *TIFFRepresentation;
+ (nullable NSImage *)imageNamed:(NSString *)name;
- (instancetype)initWithSize:(NSSize)size;
- (nullable instancetype)initWithData:(NSData *)data;
- (instancetype)initWithCGImage:(CGImageRef)image size:(NSSize)size;
- (nullable CGImageRef)CGImageForProposedRect:(nullable NSRect *)rect
                                      context:(nullable NSGraphicsContext *)context
                                        hints:(nullable NSDictionary<NSString *, id> *)hints;
@property (readonly, copy) NSArray<NSImageRep *> *representations;
- (void)addRepresentation:(NSImageRep *)representation;
- (void)removeRepresentation:(NSImageRep *)representation;
- (void)drawInRect:(NSRect)rect
          fromRect:(NSRect)from
         operation:(NSCompositingOperation)operation
          fraction:(CGFloat)fraction;
@end

typedef TN_OPTIONS(NSInteger, NSStringDrawingOptions){NSStringDrawingUsesLineFragmentOrigin = 1 << 0};

@interface NSString (NSStringDrawing)
- (NSSize)sizeWithAttributes:(nullable NSDictionary<NSString *, id> *)attributes;
- (NSRect)boundingRectWithSize:(NSSize)size
                       options:(NSStringDrawingOptions)options
                    attributes:(nullable NSDictionary<NSString *, id> *)attributes;
@end

#pragma clang assume_nonnull end
