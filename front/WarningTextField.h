#pragma once

#import "front/CellControls.h"

/// A text field whose text may be a warning, in a colour that is legible in the appearance it is drawn in.
@interface WarningTextField : CellTextField {
@private
    BOOL _warns;
}

- (BOOL)warns;
- (void)setWarns:(BOOL)warns;

@end
