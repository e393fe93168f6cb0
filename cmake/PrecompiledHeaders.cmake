# Headers that most sources of a target begin with, parsed once instead of once a source. Builds without this see to it
# that every source names what it uses.
set(coreHeaders <algorithm> <array> <functional> <map> <memory> <optional> <set> <span> <string> <string_view> <utility>
    <variant> <vector>)
set(testHeaders <gtest/gtest.h> ${coreHeaders})
if(APPLE)
    set(appkitHeader <AppKit/AppKit.h>)
else()
    set(appkitHeader ${PROJECT_SOURCE_DIR}/gnustep/include/Compat.h)
endif()

# tarnwick_precompile(TARGET [HEADER ...]): the headers for its C++ sources, AppKit for those in Objective-C++.
function(tarnwick_precompile target)
    if(NOT TARNWICK_PRECOMPILED)
        return()
    endif()
    set(CXXHeaders ${ARGN})
    set(OBJCXXHeaders ${appkitHeader} ${coreHeaders})
    set(headers)
    foreach(language CXX OBJCXX)
        foreach(header IN LISTS ${language}Headers)
            string(REPLACE ">" "$<ANGLE-R>" header ${header})
            list(APPEND headers "$<$<COMPILE_LANGUAGE:${language}>:${header}>")
        endforeach()
    endforeach()
    target_precompile_headers(${target} PRIVATE ${headers})
endfunction()

# tarnwick_reuse_precompiled(TARGET OTHER): those of another target that is compiled alike.
function(tarnwick_reuse_precompiled target other)
    if(TARNWICK_PRECOMPILED)
        target_precompile_headers(${target} REUSE_FROM ${other})
    endif()
endfunction()
