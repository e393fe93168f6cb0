#pragma once

#include <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

@interface CALayer : NSObject
@property CGFloat cornerRadius;
@property CGFloat borderWidth;
@property (nullable) CGColorRef backgroundColor;
@property (nullable) CGColorRef borderColor;
@end
