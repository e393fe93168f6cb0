#import "bench/app/ClickService.h"

#import "gnustep/defaults/DefaultsFiles.h"
#import "tests/driving/Driving.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace driving = tarnwick::driving;

constexpr double pumpSeconds = 0.002;
constexpr double patienceSeconds = 60;

std::function<NSWindow *()> windowToServe;
std::function<void()> serviceToRun;

using Clock = std::chrono::steady_clock;

/// Which version of each preference file is there. A writer renames a new file into place.
struct Versions {
    std::array<ino_t, 2> files{};

    static Versions now() {
        static NSArray *const domains = [[NSArray alloc]
            initWithObjects:@"org.halvane.Tarnwick", @"H7Q2ZK5RX9.org.halvane.Tarnwick", nil];
        Versions versions;
        for (NSUInteger index = 0; index < [domains count]; ++index) {
            NSString *path = TNSettingsFileOf([domains objectAtIndex:index]);
            struct stat status = {};
            if (stat([path fileSystemRepresentation], &status) == 0) {
                versions.files[index] = status.st_ino;
            }
        }
        return versions;
    }
    [[nodiscard]] bool allDifferFrom(const Versions &other) const {
        return files[0] != other.files[0] && files[1] != other.files[1];
    }
};

long microseconds(Clock::duration duration) {
    return static_cast<long>(std::chrono::duration_cast<std::chrono::microseconds>(duration).count());
}

void click(NSView *view) {
    const auto before = Versions::now();
    const auto start = Clock::now();
    driving::postClicks([view window], driving::middleOf(view));
    while (!Versions::now().allDifferFrom(before)) {
        driving::pump(pumpSeconds);
        if (Clock::now() - start > std::chrono::duration<double>(patienceSeconds)) {
            std::puts("nothing was written");
            return;
        }
    }
    const auto written = Clock::now();
    do {
        driving::pump(0);
    } while ([[view window] viewsNeedDisplay]);
    std::printf("%ld %ld\n", microseconds(written - start), microseconds(Clock::now() - start));
}

bool inputIsWaiting() {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, 0) > 0;
}

} // namespace

/// Starts the service once the application runs.
@interface ClickServiceStart : NSObject
- (void)start:(id)unused;
@end

@implementation ClickServiceStart

- (void)start:(id)unused {
    (void)unused;
    while (![windowToServe() isKeyWindow] || ![NSApp isActive]) {
        driving::pump(pumpSeconds);
    }
    serviceToRun();
    [[NSUserDefaults standardUserDefaults] synchronize];
    std::exit(EXIT_SUCCESS);
}

@end

namespace tarnwick::bench {

void whenRunning(std::function<NSWindow *()> window, std::function<void()> serve) {
    windowToServe = std::move(window);
    serviceToRun = std::move(serve);
    ClickServiceStart *service = [[[ClickServiceStart alloc] init] autorelease];
    [service performSelector:@selector(start:) withObject:nil afterDelay:0.1];
}

void serveLines(const std::function<void(const std::string &line)> &answer) {
    driving::settle();
    std::puts("ready");
    std::fflush(stdout);
    std::string line;
    for (;;) {
        while (!inputIsWaiting()) {
            driving::pump(pumpSeconds);
        }
        if (!std::getline(std::cin, line)) {
            return;
        }
        @autoreleasepool {
            driving::settle();
            answer(line);
            std::fflush(stdout);
        }
    }
}

void serveClicks(const std::function<NSView *()> &view, const std::function<long()> &count) {
    serveLines([&view, &count](const std::string &line) {
        if (line == "count") {
            std::printf("%ld\n", count());
        } else {
            click(view());
        }
    });
}

} // namespace tarnwick::bench
