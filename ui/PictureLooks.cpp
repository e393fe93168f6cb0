#include "ui/PictureLooks.h"

#include "platform/Images.h"

namespace tarnwick {

bool PictureLooks::isUnreadable(const PlistData& picture) const {
    const auto found = known_.find(picture.bytes());
    return found != known_.end() && found->second.isUnreadable;
}

void PictureLooks::look(const PlistData& picture) {
    auto& known = known_[picture.bytes()];
    if (known.picture.empty()) {
        known.picture = picture;
        known.isUnreadable = !images_.fromData(picture);
    }
    known.round = round_;
}

void PictureLooks::forgetOthers() {
    std::erase_if(known_, [this](const auto& entry) { return entry.second.round != round_; });
    ++round_;
}

} // namespace tarnwick
