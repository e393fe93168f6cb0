#pragma once

#include <string>
#include <variant>
#include <vector>

namespace tarnwick {

/// What happens to template files beside a change of their list. Names are those of files in the template
/// folder, places those where `HeldFiles` keeps something.
struct TemplatesCopied {
    std::vector<std::string> names;
};
struct TemplateMoved {
    std::string from;
    std::string to;
};
/// The files go into `HeldFiles`, or for good where that fails.
struct TemplatesRemoved {
    std::vector<std::string> names;
};
struct HeldTemplate {
    std::string name;
    std::string place;
};
/// Files come from `HeldFiles`. A file that is there already stays.
struct TemplatesPutBack {
    std::vector<HeldTemplate> files;
};
/// The whole folder, with the files of the factory list, in place of the one that is there.
struct TemplatesLaidOut {};
/// The whole folder from a place, in place of the one that is there; an empty place: no folder.
struct TemplateFolderPutBack {
    std::string place;
};

/// Nothing in it: the change touches no file.
using TemplateWork = std::variant<std::monostate, TemplatesCopied, TemplateMoved, TemplatesRemoved,
    TemplatesPutBack, TemplatesLaidOut, TemplateFolderPutBack>;

} // namespace tarnwick
