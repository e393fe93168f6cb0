#pragma once

#import "front/WarningTextField.h"

/// A text of a row: slanted too while it warns. Its tool tip is what it is given, or else the text itself
/// where that is cut off.
@interface RuleTextField : WarningTextField {
@private
    NSString *_remark;
}

/// Empty or nil: nothing is to be said.
- (void)setRemark:(NSString *)remark;

@end
