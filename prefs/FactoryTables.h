#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tarnwick {

/// The rows of the factory lists, in order.

struct FactoryTemplate {
    std::string_view displayName;
    std::string_view extension;
    /// "1" or "0": these rows store the flag as a string.
    std::string_view enable;
};

inline constexpr std::array<FactoryTemplate, 15> factoryTemplates{{
    {"TXT", "txt", "1"},
    {"RTF", "rtf", "1"},
    {"XML", "xml", "1"},
    {"Word", "docx", "1"},
    {"Excel", "xlsx", "1"},
    {"PPT", "pptx", "1"},
    {"WPS_wps", "wps", "1"},
    {"WPS_et", "et", "1"},
    {"WPS_dps", "dps", "1"},
    {"Pages", "pages", "0"},
    {"Numbers", "numbers", "0"},
    {"Keynote", "key", "0"},
    {"Ai", "ai", "0"},
    {"PSD", "psd", "0"},
    {"Markdown", "md", "0"},
}};

/// Folders of the home that are copy/move-to targets. There is deliberately no Desktop.
inline constexpr std::array<std::string_view, 4> factoryTargets{"Downloads", "Pictures", "Music", "Movies"};

/// Each is the record's name and the name of its image.
inline constexpr std::array<std::string_view, 20> factoryIcons{"App", "Apple", "Book", "Calendar", "Cloud",
    "Excel", "File", "Google", "Mac OS1", "Mac OS2", "Mac", "Mail", "Music", "Pages", "Picture", "PPT", "QQ",
    "Video", "WeChat", "Word"};

struct FactoryAction {
    /// The record's "Action" and "displayName".
    std::string_view action;
    std::string_view image;
    std::string_view note;
};

inline constexpr std::array<FactoryAction, 18> factoryActions{{
    {"Cut", "Cut", "Initially just hide"},
    {"Pin\u3001Annotation by Snapfin", "Snapfin", ""},
    {"Copy Path", "Copy Path", ""},
    {"Delete directly", "Delete directly", ""},
    {"Open in Terminal", "Open in Terminal", ""},
    {"Open in iTerm2", "Open in iTerm2", ""},
    {"Open in VSCode", "VSCode", ""},
    {"Open in Sublime Text", "Sublime Text", ""},
    {"Open in Emacs", "Emacs", ""},
    {"Screenshots by Snapfin", "Snapfin", "Snapfin >= 1.0.6"},
    {"Nohidden All Files in Path", "Nohidden All Files in Path", ""},
    {"Nohidden Selected Files", "Nohidden Selected Files", ""},
    {"Hidden All Files in Path", "Hidden All Files in Path", ""},
    {"Hidden Selected Files", "Hidden Selected Files", ""},
    {"Image to Icon", "Image to Icon", "Only for testing"},
    {"Translate by Baidu", "Translate by Baidu", "Three Text Services"},
    {"Translate by Google", "Translate by Google", "No need VPN"},
    {"Change to QR Code", "Change to QR Code", "Save in Pasteboard"},
}};

/// The editors that older versions of the Others list lacked, and where each belongs, counted from 0. They
/// are three rows of the table above.
inline constexpr std::array<std::size_t, 3> editorActionIndexes{6, 7, 8};

} // namespace tarnwick
