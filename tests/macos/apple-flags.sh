# The flags with which an Apple target is compiled against the declarations in sdk/. Sourced.

appleChecks=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
llvm=/usr/lib/llvm-14
appleLanes=(x86_64-apple-macos10.11 arm64-apple-macos11)

# appleFlags TARGET FILE: sets `flags`. Only Objective-C++ sees the frameworks.
appleFlags() {
    local target=$1 file=$2
    local systemHeaders=(-isystem /usr/include/x86_64-linux-gnu -isystem /usr/include)
    # The C library of the machine that the lane stands for: its word size shows in the headers.
    [[ $target == arm64-* ]] && systemHeaders=(-isystem /usr/aarch64-linux-gnu/include)
    flags=(-target "$target" -std=c++20 -D_GNU_SOURCE -U__nonnull -include "$appleChecks/compat/darwin_types.h"
        -nostdinc++ -isystem "$appleChecks/libcxx" -isystem "$appleChecks/compat" -isystem "$llvm/include/c++/v1"
        -I. -Wall -Wextra -Wconversion -Werror -Wunguarded-availability -Wformat=2 -fno-color-diagnostics
        '-DTARNWICK_DEVELOPER_BUILD_PREFIX="/prefix/"')
    if [[ $file == *.mm ]]; then
        flags+=(-x objective-c++ -fno-objc-arc -isystem "$appleChecks/sdk" -isystem "$appleChecks/sdk-missing" -Wno-unused-parameter
            -Wundeclared-selector -Wobjc-signed-char-bool -Wmethod-signatures -Woverriding-method-mismatch)
    else
        flags+=(-x c++)
    fi
    # What later systems call old is still what the oldest one has.
    [[ $target == arm64-* ]] && flags+=(-Wno-deprecated-declarations)
    flags+=("${systemHeaders[@]}")
}
