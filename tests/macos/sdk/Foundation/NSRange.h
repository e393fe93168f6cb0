#pragma once

#import <objc/objc.h>

typedef struct _NSRange {
    NSUInteger location;
    NSUInteger length;
} NSRange;

inline NSRange NSMakeRange(NSUInteger location, NSUInteger length) {
    return {location, length};
}

inline NSUInteger NSMaxRange(NSRange range) {
    return range.location + range.length;
}
