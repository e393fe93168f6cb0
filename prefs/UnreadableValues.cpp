#include "prefs/UnreadableValues.h"

#include "platform/SystemLog.h"
#include "prefs/LocalPreferences.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"
#include "prefs/SharedPreferences.h"

#include <algorithm>
#include <string>

namespace tarnwick {
namespace {

bool isReadableList(const PlistValue& stored) {
    const auto* elements = stored.array();
    return elements && std::all_of(elements->begin(), elements->end(), isReadableRecord);
}

/// Whether an original kept earlier already holds everything that cannot be read in `stored`.
bool isCoveredBy(const PlistValue& kept, const PlistValue& stored) {
    if (kept == stored) {
        return true;
    }
    const auto* keptElements = kept.array();
    const auto* elements = stored.array();
    return keptElements && elements &&
           std::all_of(elements->begin(), elements->end(), [&](const auto& element) {
               return isReadableRecord(element) ||
                      std::find(keptElements->begin(), keptElements->end(), element) != keptElements->end();
           });
}

void keepOriginal(
    LocalPreferences& local, SystemLog& log, std::string_view listKey, const PlistValue& stored) {
    const auto firstKey = std::string(listKey) + ".unreadable";
    auto key = firstKey;
    for (int copy = 2;; ++copy) {
        const auto kept = local.value(key);
        if (!kept) {
            local.set(key, stored);
            break;
        }
        if (isCoveredBy(*kept, stored)) {
            break;
        }
        key = firstKey + "." + std::to_string(copy);
    }
    log.write(std::string(listKey) + ": what cannot be read is left out; the original is kept under " + key);
}

} // namespace

bool isReadableRecord(const PlistValue& element) {
    const auto* fields = element.dictionary();
    if (!fields) {
        return false;
    }
    return std::all_of(fields->begin(), fields->end(), [](const auto& entry) {
        const auto& [key, value] = entry;
        const auto isIn = [&key = key](const auto& keys) {
            return std::find(keys.begin(), keys.end(), key) != keys.end();
        };
        if (isIn(field::flags)) {
            return flagValue(value).has_value();
        }
        if (isIn(field::texts)) {
            return value.string() != nullptr;
        }
        return key != field::icon || value.data() != nullptr;
    });
}

void keepUnreadableOriginals(LocalPreferences& local, SystemLog& log) {
    for (const auto& facts : ruleCategoryFacts) {
        const auto stored = local.value(facts.listKey);
        if (stored && !isReadableList(*stored)) {
            keepOriginal(local, log, facts.listKey, *stored);
        }
    }
}

void keepUnreadableFeatures(const SharedPreferences& shared, LocalPreferences& local, SystemLog& log) {
    const auto stored = shared.value(key::enabledFeatures);
    if (stored && !stored->array()) {
        keepOriginal(local, log, key::enabledFeatures, *stored);
    }
}

} // namespace tarnwick
