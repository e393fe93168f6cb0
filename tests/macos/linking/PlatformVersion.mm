// What Apple's compiler calls for `@available`, for a link without Apple's compiler.
#import <Foundation/Foundation.h>

#include <cstdint>

extern "C" std::int32_t __isPlatformVersionAtLeast(
    std::uint32_t platform, std::uint32_t major, std::uint32_t minor, std::uint32_t patch);

std::int32_t __isPlatformVersionAtLeast(
    std::uint32_t, std::uint32_t major, std::uint32_t minor, std::uint32_t patch) {
    return [[NSProcessInfo processInfo] isOperatingSystemAtLeastVersion:{major, minor, patch}];
}
