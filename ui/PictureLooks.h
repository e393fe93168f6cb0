#pragma once

#include "values/PlistValue.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>

namespace tarnwick {

class Images;

/// Which pictures of records cannot be shown. A picture is its bytes, which never change, so it is read once
/// for as long as some list holds it.
class PictureLooks {
public:
    explicit PictureLooks(Images& images) : images_(images) {}

    /// False while nobody has looked.
    [[nodiscard]] bool isUnreadable(const PlistData& picture) const;
    void look(const PlistData& picture);
    /// Lets go of the pictures that were not looked at since the last time.
    void forgetOthers();

private:
    struct Known {
        /// Keeps the bytes at their address.
        PlistData picture;
        bool isUnreadable = false;
        std::size_t round = 0;
    };

    Images& images_;
    std::unordered_map<const std::uint8_t*, Known> known_;
    std::size_t round_ = 0;
};

} // namespace tarnwick
