#include "transfer/UnderstandSettings.h"

#include "platform/Images.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/UnreadableValues.h"
#include "transfer/SettingsDocument.h"
#include "values/PathText.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace tarnwick {
namespace {

/// What file systems take.
constexpr std::size_t longestName = 255;

const PlistValue* valueAt(const PlistDictionary& dictionary, std::string_view key) {
    const auto found = dictionary.find(key);
    return found == dictionary.end() ? nullptr : &found->second;
}

const PlistDictionary* dictionaryAt(const PlistDictionary& dictionary, std::string_view key) {
    const auto* value = valueAt(dictionary, key);
    return value ? value->dictionary() : nullptr;
}

std::optional<ImportFault> faultOf(const PlistValue& value) {
    const auto* document = value.dictionary();
    const auto* application = document ? valueAt(*document, document::application) : nullptr;
    if (!application || *application != PlistValue(applicationIdentifier)) {
        return ImportFault::foreign;
    }
    const auto* format = valueAt(*document, document::format);
    const auto* number = format ? format->integer() : nullptr;
    if (number && *number > settingsFormat) {
        return ImportFault::laterFormat;
    }
    const auto isWhole = number && *number == settingsFormat && dictionaryAt(*document, document::switches) &&
                         dictionaryAt(*document, document::templateFiles);
    return isWhole ? std::nullopt : std::optional(ImportFault::damaged);
}

/// Which bytes are pictures. Many records may bear the same.
class Pictures {
public:
    explicit Pictures(Images& images) : images_(images) {}

    [[nodiscard]] bool holds(const PlistData& data) {
        const std::string_view bytes(reinterpret_cast<const char*>(data.bytes()), data.size());
        const auto [known, isNew] = known_.try_emplace(bytes, false);
        if (isNew) {
            known->second = images_.fromData(data) != nullptr;
        }
        return known->second;
    }

private:
    Images& images_;
    std::map<std::string_view, bool> known_;
};

class Understanding {
public:
    Understanding(const PlistDictionary& document, Images& images) : document_(document), pictures_(images) {}

    ImportPlan plan() {
        if (const auto* version = valueAt(document_, document::version); version && version->string()) {
            plan_.version = *version->string();
        }
        for (const auto category : allRuleCategories) {
            readList(category);
        }
        readSwitches();
        readTemplateFiles();
        for (const auto category : allRuleCategories) {
            lookOver(category);
        }
        nameUnknownParts();
        return std::move(plan_);
    }

private:
    void leaveOut(LeftOutReason reason, std::string_view name) {
        plan_.leftOut.push_back({reason, std::string(name), std::nullopt, 0});
    }

    void readList(RuleCategory category) {
        const auto key = factsOf(category).listKey;
        const auto* value = valueAt(document_, key);
        const auto* elements = value ? value->array() : nullptr;
        if (value && !elements) {
            leaveOut(LeftOutReason::otherKind, key);
        }
        if (!elements) {
            return;
        }
        auto& records = plan_.lists[category];
        records.reserve(elements->size());
        for (std::size_t index = 0; index < elements->size(); ++index) {
            if (auto fields = (*elements)[index].sharedDictionary()) {
                records.emplace_back(std::move(fields));
            } else {
                plan_.leftOut.push_back({LeftOutReason::noRule, std::string(key), category, index + 1});
            }
        }
    }

    void readSwitches() {
        const auto known = optionSwitches();
        for (const auto& [key, value] : *dictionaryAt(document_, document::switches)) {
            if (std::find(known.begin(), known.end(), key) == known.end()) {
                leaveOut(LeftOutReason::unknown, key);
            } else if (!flagValue(value)) {
                leaveOut(LeftOutReason::otherKind, key);
            } else {
                plan_.switches.emplace(key, value);
            }
        }
    }

    void readTemplateFiles() {
        std::set<std::string, std::less<>> owned;
        for (const auto& record : plan_.lists[RuleCategory::createNewFile]) {
            for (auto& name : templateFilesOf(record)) {
                owned.insert(std::move(name));
            }
        }
        for (const auto& [name, tree] : *dictionaryAt(document_, document::templateFiles)) {
            if (const auto reason = reasonAgainst(name, tree)) {
                leaveOut(*reason, name);
            } else if (owned.count(name) == 0) {
                leaveOut(LeftOutReason::nobodys, name);
            } else {
                plan_.templateFiles.emplace(name, tree);
            }
        }
    }

    /// A package is taken whole or not at all.
    static std::optional<LeftOutReason> reasonAgainst(const std::string& name, const PlistValue& tree) {
        if (!isFileName(name) || name.size() > longestName) {
            return LeftOutReason::noFileName;
        }
        const auto* folder = tree.dictionary();
        if (!folder) {
            return tree.data() ? std::nullopt : std::optional(LeftOutReason::noFile);
        }
        for (const auto& [inner, content] : *folder) {
            if (const auto reason = reasonAgainst(inner, content)) {
                return reason;
            }
        }
        return std::nullopt;
    }

    void lookOver(RuleCategory category) {
        const auto& facts = factsOf(category);
        auto& oddities = plan_.oddities[category];
        for (const auto& record : plan_.lists[category]) {
            const auto mayLackName = facts.nameMark.empty() && !record.text(field::realPath).empty();
            oddities.withoutName += record.text(field::displayName).empty() && !mayLackName ? 1 : 0;
            oddities.unreadable += isReadableRecord(record.toPlist()) ? 0 : 1;
            oddities.withoutPicture +=
                facts.hasPictures && !pictures_.holds(record.data(field::icon)) ? 1 : 0;
            oddities.withoutFile += facts.hasTemplateFiles && !hasFile(record) ? 1 : 0;
        }
    }

    [[nodiscard]] bool hasFile(const RuleRecord& record) const {
        auto names = templateFilesOf(record);
        names.pop_back();
        return std::any_of(names.begin(), names.end(),
            [this](const auto& name) { return plan_.templateFiles.count(name) != 0; });
    }

    void nameUnknownParts() {
        constexpr std::array parts{document::application, document::format, document::version, document::date,
            document::switches, document::templateFiles};
        for (const auto& [key, value] : document_) {
            const auto isIt = [&key = key](const auto& known) { return known == key; };
            const auto isList = [&key = key](auto category) { return factsOf(category).listKey == key; };
            if (std::none_of(parts.begin(), parts.end(), isIt) &&
                std::none_of(allRuleCategories.begin(), allRuleCategories.end(), isList)) {
                leaveOut(LeftOutReason::unknown, key);
            }
        }
    }

    const PlistDictionary& document_;
    Pictures pictures_;
    ImportPlan plan_;
};

} // namespace

std::variant<ImportPlan, ImportFault> understandSettings(const PlistValue& document, Images& images) {
    if (const auto fault = faultOf(document)) {
        return *fault;
    }
    return Understanding(*document.dictionary(), images).plan();
}

} // namespace tarnwick
