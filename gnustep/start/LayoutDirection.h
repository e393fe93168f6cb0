#pragma once

#import <AppKit/AppKit.h>

/// Whether the interface is to be read from right to left: by the two settings with which macOS turns around
/// an application that has no language read in that way, `AppleTextDirection` and
/// `NSForceRightToLeftWritingDirection`. The same for the whole run.
bool TNReadsFromRightToLeft();

/// Where a rectangle in a room goes that is laid out for reading from left to right: to the other side when
/// the interface is read from right to left, and else nowhere.
NSRect TNPlaceByDirection(NSRect place, NSRect room);

/// The place of the side at which reading begins.
CGFloat TNLeadingEdge(NSRect place);

/// That of texts which begin there.
NSTextAlignment TNLeadingAlignment();
