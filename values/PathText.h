#pragma once

#include <string_view>

namespace tarnwick {

/// Parts of a POSIX path as text, in the platform's own sense: trailing slashes do not count, and a leading
/// dot begins no extension.

/// The last component; "/" for the root, empty for an empty path.
[[nodiscard]] std::string_view lastPathComponent(std::string_view path);
/// The path without its last component; "/" for what lies in the root, empty for a bare name.
[[nodiscard]] std::string_view withoutLastPathComponent(std::string_view path);
/// Whether it can name a file in a folder: it leads nowhere else, and is not one of the two dot names, which
/// are folders.
[[nodiscard]] bool isFileName(std::string_view name);
/// The last component's extension, without its dot; empty when it has none.
[[nodiscard]] std::string_view pathExtension(std::string_view path);
/// The last component without its extension.
[[nodiscard]] std::string_view lastComponentWithoutExtension(std::string_view path);

} // namespace tarnwick
