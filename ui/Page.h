#pragma once

#include "values/EnumTable.h"

#include <array>

namespace tarnwick {

/// The pages in the order of the tab view.
enum class Page { createNewFile, copyFilesTo, commonPath, customIcon, others, moreApps };

inline constexpr std::array allPages{
    Page::createNewFile, Page::copyFilesTo, Page::commonPath, Page::customIcon, Page::others, Page::moreApps};

template <typename Value>
using PerPage = EnumTable<Page, allPages.size(), Value>;

} // namespace tarnwick
