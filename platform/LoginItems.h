#pragma once

namespace tarnwick {

/// The session's login items, as far as they concern this application's own bundle; failures are ignored.
/// Implementations: macOS session login items, Linux (none), in memory.
class LoginItems {
public:
    virtual ~LoginItems() = default;
    [[nodiscard]] virtual bool isLoginItem() const = 0;
    virtual void add() = 0;
    virtual void remove() = 0;
};

} // namespace tarnwick
