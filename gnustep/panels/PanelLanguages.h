#pragma once

#import <Foundation/Foundation.h>

/// A text of the toolkit's panels in the user's language; the key itself where nobody has it.
NSString *TNPanelText(NSString *key);
