#pragma once

#import <AppKit/AppKit.h>

#include "ui/Notices.h"

#include <vector>

/// The notices at the head of the pages, one below the other. It takes its room from the view below it, and
/// has none without notices.
@interface NoticeBar : NSView {
@private
    id _controller;
    NSView *_below;
    std::vector<tarnwick::Notice> _notices;
}

/// Stands above `below` in the same view. Neither is retained.
- (instancetype)initAbove:(NSView *)below controller:(id)controller;
/// Whether that changed anything.
- (BOOL)showNotices:(const std::vector<tarnwick::Notice> &)notices;

@end
