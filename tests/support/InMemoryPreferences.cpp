#include "tests/support/InMemoryPreferences.h"

namespace tarnwick::testing {

class InMemoryPreferences::Store final : public PreferenceStore {
public:
    Store(InMemoryPreferences& owner, PlistDictionary& values, std::string name)
        : owner_(owner), values_(values), name_(std::move(name)) {}

    std::optional<PlistValue> value(std::string_view key) const override {
        const auto found = values_.find(key);
        return found == values_.end() ? std::nullopt : std::optional(found->second);
    }
    void setValue(std::string_view key, const PlistValue& value) override {
        owner_.log_.add(name_ + " set " + std::string(key));
        const auto old = this->value(key);
        values_.insert_or_assign(std::string(key), value);
        if (old != value) {
            tell(key, value);
        }
    }
    void removeValue(std::string_view key) override {
        owner_.log_.add(name_ + " remove " + std::string(key));
        if (const auto found = values_.find(key); found != values_.end()) {
            values_.erase(found);
            tell(key, false);
        }
    }
    void synchronize() override { owner_.log_.add(name_ + " synchronise"); }

private:
    void tell(std::string_view key, const PlistValue& value) {
        if (&values_ == &owner_.local && owner_.observer && owner_.observedKeys.count(key) != 0) {
            owner_.observer(key, value);
        }
    }

    InMemoryPreferences& owner_;
    PlistDictionary& values_;
    std::string name_;
};

std::unique_ptr<PreferenceStore> InMemoryPreferences::openStandardDomain() {
    log_.add("local open");
    return std::make_unique<Store>(*this, local, "local");
}

std::unique_ptr<PreferenceStore> InMemoryPreferences::openSuite(std::string_view name) {
    log_.add("shared open " + std::string(name));
    return std::make_unique<Store>(*this, shared, "shared");
}

std::optional<std::string> InMemoryPreferences::systemWideString(std::string_view key) const {
    if (const auto found = local.find(key); found != local.end() && found->second.string()) {
        return *found->second.string();
    }
    const auto found = systemWide.find(key);
    return found == systemWide.end() ? std::nullopt : std::optional(found->second);
}

void InMemoryPreferences::userSets(std::string_view key, const PlistValue& value) {
    Store(*this, local, "local").setValue(key, value);
}

} // namespace tarnwick::testing
