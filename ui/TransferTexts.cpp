#include "ui/TransferTexts.h"

#include "platform/ApplicationBundle.h"
#include "ui/CountText.h"
#include "ui/NumberText.h"
#include "ui/ShortenedText.h"
#include "ui/WindowLayout.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace tarnwick {
namespace {

/// What an alert has room for.
constexpr std::size_t mostNamed = 8;
constexpr std::size_t mostOfAName = 60;

/// A name out of a file, which may be anything: in one line, and no longer than one.
std::string shown(std::string name) {
    std::replace_if(
        name.begin(), name.end(), [](char character) { return static_cast<unsigned char>(character) < ' '; },
        ' ');
    return shortened(std::move(name), mostOfAName);
}

/// A line each; those that there is no room for are counted.
template <typename Items, typename LineOf>
std::string listed(const Items& items, const ApplicationBundle& bundle, const LineOf& lineOf) {
    std::string text;
    for (std::size_t item = 0; item < std::min(items.size(), mostNamed); ++item) {
        text.append(item == 0 ? "" : "\n").append(lineOf(items[item]));
    }
    if (items.size() > mostNamed) {
        text.append("\n").append(
            filled(bundle.localized("and %@ more"), {numberText(bundle, items.size() - mostNamed)}));
    }
    return text;
}

class Summary {
public:
    Summary(const ImportPlan& plan, const PerCategory<std::size_t>& present, const ApplicationBundle& bundle)
        : plan_(plan), present_(present), bundle_(bundle) {}

    std::string text() {
        tellNumbers();
        tellOddities();
        tellRefills();
        tellWhatIsLeftOut();
        return std::move(text_);
    }

private:
    void add(const std::string& line) { text_.append(text_.empty() ? "" : "\n").append(line); }
    void addHeading(const std::string& line) {
        add("");
        add(line);
    }
    [[nodiscard]] std::string titleOf(RuleCategory category) const {
        return bundle_.localized(layoutOf(pageOf(category)).title);
    }

    void tellNumbers() {
        add(bundle_.localized(
            "All rules, option switches and template files are replaced by those of the file."));
        if (!plan_.version.empty()) {
            add(filled(bundle_.localized("It was exported by version %@."), {shown(plan_.version)}));
        }
        addHeading(bundle_.localized("Rules, now and afterwards:"));
        for (const auto category : allRuleCategories) {
            add(filled(bundle_.localized("%1$@: %2$@ \u2192 %3$@"),
                {titleOf(category), numberText(bundle_, present_[category]),
                    numberText(bundle_, plan_.lists[category].size())}));
        }
    }

    void tellOddities() {
        const auto start = text_.size();
        for (const auto category : allRuleCategories) {
            const auto& odd = plan_.oddities[category];
            tellOdd("%1$@, without a name: %2$@", category, odd.withoutName);
            tellOdd("%1$@, with fields that cannot be read: %2$@", category, odd.unreadable);
            tellOdd("%1$@, without a picture that can be shown: %2$@", category, odd.withoutPicture);
            tellOdd("%1$@, without a template file: %2$@", category, odd.withoutFile);
        }
        if (text_.size() > start) {
            text_.insert(start, "\n\n" + bundle_.localized("This looks odd and is kept as it is:"));
        }
    }

    void tellOdd(std::string_view format, RuleCategory category, std::size_t number) {
        if (number > 0) {
            add(filled(bundle_.localized(format), {titleOf(category), numberText(bundle_, number)}));
        }
    }

    void tellRefills() {
        for (const auto category : allRuleCategories) {
            if (factsOf(category).isNeverEmpty && plan_.lists[category].empty()) {
                addHeading(filled(bundle_.localized("%@ will be empty. The next start fills it again."),
                    {titleOf(category)}));
            }
        }
    }

    void tellWhatIsLeftOut() {
        if (!plan_.leftOut.empty()) {
            addHeading(bundle_.localized("This is left out:"));
            add(listed(plan_.leftOut, bundle_, [this](const LeftOut& item) { return reasonText(item); }));
        }
    }

    [[nodiscard]] std::string reasonText(const LeftOut& item) const {
        auto name = shown(item.name);
        switch (item.reason) {
        case LeftOutReason::noRule:
            return filled(bundle_.localized("%1$@, entry %2$@: no rule"),
                {titleOf(*item.category), numberText(bundle_, item.number)});
        case LeftOutReason::unknown:
            return filled(bundle_.localized("\u201C%@\u201D: unknown"), {name});
        case LeftOutReason::otherKind:
            return filled(bundle_.localized("\u201C%@\u201D: a value of another kind"), {name});
        case LeftOutReason::noFileName:
            return filled(bundle_.localized("\u201C%@\u201D: a name that no template file can have"), {name});
        case LeftOutReason::noFile:
            return filled(bundle_.localized("\u201C%@\u201D: neither a file nor a folder"), {name});
        case LeftOutReason::nobodys:
            return filled(bundle_.localized("\u201C%@\u201D: a file of no template"), {name});
        }
        return name;
    }

    const ImportPlan& plan_;
    const PerCategory<std::size_t>& present_;
    const ApplicationBundle& bundle_;
    std::string text_;
};

} // namespace

std::string importSummary(
    const ImportPlan& plan, const PerCategory<std::size_t>& present, const ApplicationBundle& bundle) {
    return Summary(plan, present, bundle).text();
}

std::string leftOutFiles(const std::vector<std::string>& names, const ApplicationBundle& bundle) {
    return listed(names, bundle, shown);
}

std::string faultText(ImportFault fault, const ApplicationBundle& bundle) {
    switch (fault) {
    case ImportFault::unreadable:
        break;
    case ImportFault::notRegular:
        return bundle.localized("It is no regular file.");
    case ImportFault::tooLarge:
        return bundle.localized("The file is larger than 512 MB.");
    case ImportFault::empty:
        return bundle.localized("The file is empty.");
    case ImportFault::foreign:
        return bundle.localized("The file holds no settings of Tarnwick.");
    case ImportFault::damaged:
        return bundle.localized("The file is damaged.");
    case ImportFault::laterFormat:
        return bundle.localized("The file was exported by a later version of Tarnwick.");
    case ImportFault::notStored:
        return bundle.localized("Its template files cannot be stored.");
    }
    return bundle.localized("The file cannot be read.");
}

} // namespace tarnwick
