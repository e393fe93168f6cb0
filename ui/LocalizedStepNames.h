#pragma once

#include "editing/StepNames.h"
#include "ui/RuleCells.h"

namespace tarnwick {

/// Steps in the user's language, such as "Remove “Word”", with the names that the tables show. A record
/// without a name is called after its row; a long name is cut off.
class LocalizedStepNames final : public StepNames {
public:
    LocalizedStepNames(const KnownFolders& folders, const ApplicationBundle& bundle, Images& images)
        : bundle_(bundle), cells_(folders, bundle, images) {}

    [[nodiscard]] std::string nameOf(
        StepKind kind, const RuleList& list, std::optional<std::size_t> row) const override;

private:
    const ApplicationBundle& bundle_;
    RuleCells cells_;
};

} // namespace tarnwick
