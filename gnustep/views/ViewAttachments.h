#pragma once

@class NSString;
@class NSView;

/// An object that belongs to a view, by name; nil when there is none. Released together with the view.
id TNAttachment(NSView *view, NSString *name);
/// Nil takes the object away.
void TNSetAttachment(NSView *view, NSString *name, id object);
