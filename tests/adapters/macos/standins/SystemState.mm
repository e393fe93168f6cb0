#include "Recording.h"

#include <tuple>

using namespace tarnwick::standins;

@implementation StandInProcessInfo

+ (StandInProcessInfo *)processInfo {
    static auto *information = [[StandInProcessInfo alloc] init];
    return information;
}

- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version {
    record(@"isOperatingSystemAtLeastVersion(%d.%d.%d)", static_cast<int>(version.majorVersion),
        static_cast<int>(version.minorVersion), static_cast<int>(version.patchVersion));
    const auto &running = answers().systemVersion;
    return std::tuple(running[0], running[1], running[2]) >=
           std::tuple(static_cast<int>(version.majorVersion), static_cast<int>(version.minorVersion),
               static_cast<int>(version.patchVersion));
}

@end

@implementation StandInWorkspace

+ (StandInWorkspace *)sharedWorkspace {
    static auto *workspace = [[StandInWorkspace alloc] init];
    return workspace;
}

- (StandInImage *)iconForFile:(NSString *)path {
    record(@"iconForFile(%@)", path);
    return [[[StandInImage alloc] init] autorelease];
}

@end

@implementation StandInImage

- (instancetype)initWithCGImage:(CGImageRef)image size:(NSSize)size {
    self = [super init];
    if (self) {
        record(@"initWithCGImage(%@, %.0f x %.0f)", image ? @"picture" : @"none", size.width, size.height);
        _origin = @"picture";
        _size = size;
    }
    return self;
}

- (instancetype)initWithData:(NSData *)data {
    self = [super init];
    record(@"initWithData(%lu bytes)", (unsigned long)[data length]);
    return self;
}

- (instancetype)init {
    self = [super init];
    if (self) {
        _origin = @"icon";
        _size = NSMakeSize(32, 32);
    }
    return self;
}

- (CGImageRef)CGImageForProposedRect:(NSRect *)rect
                             context:(NSGraphicsContext *)context
                               hints:(NSDictionary *)hints {
    record(
        @"CGImageForProposedRect(%@)", !rect && !context && !hints ? @"nothing asked" : @"something asked");
    return answers().iconHasPicture ? reinterpret_cast<CGImageRef>(self) : nullptr;
}

- (NSSize)size {
    return _size;
}

- (NSString *)origin {
    return _origin;
}

@end
