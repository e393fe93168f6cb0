#pragma once

#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"
#include "values/PlistValue.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// Why a file cannot be imported.
enum class ImportFault { unreadable, notRegular, tooLarge, empty, foreign, damaged, laterFormat, notStored };

/// Why something that a file of settings holds is not imported.
enum class LeftOutReason {
    /// An element of a list that is no dictionary.
    noRule,
    /// Not known to this program.
    unknown,
    /// A list that is no array, a switch that is neither on nor off.
    otherKind,
    /// The name of a template file would lead elsewhere, or no file can have it.
    noFileName,
    /// A template file, or something in a package, that is neither bytes nor a folder.
    noFile,
    /// A template file that belongs to no rule.
    nobodys,
};

struct LeftOut {
    LeftOutReason reason;
    /// Its key or its name.
    std::string name;
    /// Of an element: in which list, and where, from 1.
    std::optional<RuleCategory> category;
    std::size_t number = 0;

    bool operator==(const LeftOut&) const = default;
};

/// How many rules of a list look odd. They are imported as they are, because the window shows such too.
struct ListOddities {
    std::size_t withoutName = 0;
    /// At least one of their fields reads as missing for its kind.
    std::size_t unreadable = 0;
    std::size_t withoutPicture = 0;
    std::size_t withoutFile = 0;

    bool operator==(const ListOddities&) const = default;
};

/// What a file of settings asks for, all of it understood.
struct ImportPlan {
    /// Of the program that wrote the file; empty when it does not say.
    std::string version;
    PerCategory<std::vector<RuleRecord>> lists =
        PerCategory<std::vector<RuleRecord>>::madeBy([](RuleCategory) { return std::vector<RuleRecord>(); });
    /// An option switch that is not among them is stored nowhere afterwards.
    PlistDictionary switches;
    /// All that the template folder shall hold.
    PlistDictionary templateFiles;
    PerCategory<ListOddities> oddities =
        PerCategory<ListOddities>::madeBy([](RuleCategory) { return ListOddities(); });
    std::vector<LeftOut> leftOut;
};

} // namespace tarnwick
