#import "bench/app/KeyService.h"

#import "bench/app/ClickService.h"
#import "tests/driving/Driving.h"

#include <chrono>
#include <cstdio>
#include <string>

namespace {

namespace driving = tarnwick::driving;
using Clock = std::chrono::steady_clock;

constexpr double patienceSeconds = 60;

struct Keys {
    NSString *characters = @"";
    NSUInteger modifiers = 0;
};

bool take(std::string &text, const std::string &beginning) {
    const bool begins = text.starts_with(beginning);
    text.erase(0, begins ? beginning.size() : 0);
    return begins;
}

Keys keysOf(std::string words) {
    Keys keys;
    if (take(words, "Command+")) {
        keys.modifiers |= NSEventModifierFlagCommand;
    }
    if (take(words, "Shift+")) {
        keys.modifiers |= NSEventModifierFlagShift;
    }
    if (words == "Return") {
        words = "\r";
    } else if (words == "Escape") {
        words = "\x1b";
    }
    keys.characters = [NSString stringWithUTF8String:words.c_str()];
    return keys;
}

long microsecondsSince(Clock::time_point start) {
    return static_cast<long>(
        std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start).count());
}

void timeKeys(const Keys &keys, NSTableView *table) {
    NSWindow *window = [table window];
    const NSInteger row = [table selectedRow];
    id responder = [window firstResponder];
    const auto start = Clock::now();
    driving::postKey(window, keys.characters, keys.modifiers);
    while ([table selectedRow] == row && [window firstResponder] == responder) {
        driving::pump(0);
        if (Clock::now() - start > std::chrono::duration<double>(patienceSeconds)) {
            std::puts("nothing happened");
            return;
        }
    }
    do {
        driving::pump(0);
    } while ([window viewsNeedDisplay]);
    std::printf("%ld\n", microsecondsSince(start));
}

void timeValidation() {
    const auto start = Clock::now();
    for (NSMenuItem *item in [[NSApp mainMenu] itemArray]) {
        [[item submenu] update];
    }
    std::printf("%ld\n", microsecondsSince(start));
}

void answer(std::string line, NSTableView *table) {
    if (take(line, "do ")) {
        const Keys keys = keysOf(line);
        driving::press([table window], keys.characters, keys.modifiers);
        std::puts("done");
    } else if (take(line, "time ")) {
        timeKeys(keysOf(line), table);
    } else if (line == "validate") {
        timeValidation();
    } else if (line == "row") {
        std::printf("%ld\n", static_cast<long>([table selectedRow]));
    } else {
        std::printf("unknown: %s\n", line.c_str());
    }
}

} // namespace

namespace tarnwick::bench {

void serveKeys(const std::function<NSTableView *()> &table) {
    serveLines([&table](const std::string &line) { answer(line, table()); });
}

} // namespace tarnwick::bench
