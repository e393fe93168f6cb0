#import "front/RuleTextField.h"

@implementation RuleTextField

- (void)dealloc {
    [_remark release];
    [super dealloc];
}

- (void)setWarns:(BOOL)warns {
    if (warns != [self warns]) {
        NSFontManager *fonts = [NSFontManager sharedFontManager];
        [self setFont:warns ? [fonts convertFont:[self font] toHaveTrait:NSItalicFontMask]
                            : [fonts convertFont:[self font] toNotHaveTrait:NSItalicFontMask]];
    }
    [super setWarns:warns];
}

- (void)setRemark:(NSString *)remark {
    [_remark autorelease];
    _remark = [remark copy];
    [self followText];
}

- (void)setFrameSize:(NSSize)size {
    [super setFrameSize:size];
    [self followText];
}

/// Nearly every text is so short that it needs no measuring.
- (BOOL)isCut {
    const CGFloat widest = static_cast<CGFloat>([[self stringValue] length]) * [[self font] pointSize];
    const CGFloat width = NSWidth([self frame]);
    return widest > width && [[self cell] cellSize].width > width;
}

- (void)followText {
    NSString *text = _remark;
    if ([text length] == 0) {
        text = [self isCut] ? [self stringValue] : nil;
    }
    if (text != [self toolTip] && ![text isEqualToString:[self toolTip]]) {
        [self setToolTip:text];
    }
}

@end
