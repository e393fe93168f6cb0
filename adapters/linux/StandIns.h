#pragma once

#import <Foundation/Foundation.h>

namespace tarnwick {

/// What only macOS could answer, as a test wants it: from the property list that the environment's
/// TARNWICK_SYSTEM_STATE names, read at each question; nil without one. Its keys are extensionIsOff,
/// carriesNoExtension, copies (paths) and forced (preference keys).
[[nodiscard]] id standInAnswer(NSString *question);

} // namespace tarnwick
