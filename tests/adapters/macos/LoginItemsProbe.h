#pragma once

namespace tarnwick::standins {

/// The operations of the application's bundle on the login items.
[[nodiscard]] bool isOwnBundleLoginItem();
void addOwnBundle();
void removeOwnBundle();

} // namespace tarnwick::standins
