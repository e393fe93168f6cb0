#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/RecordObjects.h"
#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "adapters/foundation/SystemAdapters.h"
#include "platform/PreferenceStore.h"

namespace tarnwick {
namespace {

class UserDefaultsStore : public PreferenceStore {
public:
    UserDefaultsStore(ObjectPointer<NSUserDefaults> defaults, RecordObjects &records)
        : defaults_(std::move(defaults)), records_(records) {}

    std::optional<PlistValue> value(std::string_view key) const override {
        return toPlistValue([defaults_.get() objectForKey:toNSString(key)]);
    }
    void setValue(std::string_view key, const PlistValue &value) override {
        @autoreleasepool {
            if (const auto *flag = value.boolean()) {
                [defaults_.get() setBool:*flag forKey:toNSString(key)];
            } else {
                [defaults_.get() setObject:records_.toObject(value) forKey:toNSString(key)];
            }
        }
    }
    void removeValue(std::string_view key) override {
        @autoreleasepool {
            [defaults_.get() removeObjectForKey:toNSString(key)];
        }
    }
    void synchronize() override { [defaults_.get() synchronize]; }

protected:
    [[nodiscard]] RecordObjects &records() { return records_; }

private:
    ObjectPointer<NSUserDefaults> defaults_;
    RecordObjects &records_;
};

/// Each change stores its list here before it is published: looking for unused objects once is enough.
class StandardDomainStore final : public UserDefaultsStore {
public:
    using UserDefaultsStore::UserDefaultsStore;

    void setValue(std::string_view key, const PlistValue &value) override {
        UserDefaultsStore::setValue(key, value);
        if (value.array()) {
            records().forgetUnused();
        }
    }
};

class UserDefaultsStores final : public PreferenceStores {
public:
    std::unique_ptr<PreferenceStore> openStandardDomain() override {
        return std::make_unique<StandardDomainStore>(
            ObjectPointer<NSUserDefaults>::retaining([NSUserDefaults standardUserDefaults]), records_);
    }
    std::unique_ptr<PreferenceStore> openSuite(std::string_view name) override {
        return std::make_unique<UserDefaultsStore>(
            ObjectPointer<NSUserDefaults>::adopting(
                [[NSUserDefaults alloc] initWithSuiteName:toNSString(name)]),
            records_);
    }
    bool isForced(std::string_view key) const override { return tarnwick::isForced(key); }
    std::optional<std::string> systemWideString(std::string_view key) const override {
        NSString *text = [[NSUserDefaults standardUserDefaults] stringForKey:toNSString(key)];
        return text ? std::optional(toString(text)) : std::nullopt;
    }

private:
    /// What is stored in one domain is published in another.
    RecordObjects records_;
};

} // namespace

std::unique_ptr<PreferenceStores> makePreferenceStores() {
    return std::make_unique<UserDefaultsStores>();
}

} // namespace tarnwick
