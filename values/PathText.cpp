#include "values/PathText.h"

namespace tarnwick {
namespace {

std::string_view withoutTrailingSlashes(std::string_view path) {
    while (path.size() > 1 && path.back() == '/') {
        path.remove_suffix(1);
    }
    return path;
}

/// Where the extension's dot is in a file name, or npos.
std::size_t extensionDot(std::string_view name) {
    const auto dot = name.rfind('.');
    return dot == 0 || dot + 1 == name.size() ? std::string_view::npos : dot;
}

} // namespace

bool isFileName(std::string_view name) {
    constexpr std::string_view noPartOfOne("/\0", 2);
    return !name.empty() && name.find_first_of(noPartOfOne) == std::string_view::npos && name != "." &&
           name != "..";
}

std::string_view lastPathComponent(std::string_view path) {
    path = withoutTrailingSlashes(path);
    const auto slash = path.rfind('/');
    return slash == std::string_view::npos || path.size() == 1 ? path : path.substr(slash + 1);
}

std::string_view withoutLastPathComponent(std::string_view path) {
    path = withoutTrailingSlashes(path);
    const auto slash = path.rfind('/');
    if (slash == std::string_view::npos) {
        return {};
    }
    return withoutTrailingSlashes(path.substr(0, slash == 0 ? 1 : slash));
}

std::string_view pathExtension(std::string_view path) {
    const auto name = lastPathComponent(path);
    const auto dot = extensionDot(name);
    return dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
}

std::string_view lastComponentWithoutExtension(std::string_view path) {
    const auto name = lastPathComponent(path);
    return name.substr(0, extensionDot(name));
}

} // namespace tarnwick
