# Headers that most sources of a target begin with, parsed once instead of once a source. Builds without this see to it
# that every source names what it uses.
set(testHeaders <gtest/gtest.h> <algorithm> <functional> <map> <memory> <optional> <set> <string> <string_view>
    <variant> <vector>)

# tarnwick_precompile(TARGET [HEADER ...]): for its C++ sources; those in Objective-C++ begin with AppKit.
function(tarnwick_precompile target)
    if(NOT TARNWICK_PRECOMPILED)
        return()
    endif()
    set(headers)
    foreach(header IN LISTS ARGN)
        string(REPLACE ">" "$<ANGLE-R>" header ${header})
        list(APPEND headers "$<$<COMPILE_LANGUAGE:CXX>:${header}>")
    endforeach()
    target_precompile_headers(${target} PRIVATE ${headers}
        "$<$<COMPILE_LANGUAGE:OBJCXX>:${PROJECT_SOURCE_DIR}/gnustep/include/Compat.h>")
endfunction()

# tarnwick_reuse_precompiled(TARGET OTHER): those of another target that is compiled alike.
function(tarnwick_reuse_precompiled target other)
    if(TARNWICK_PRECOMPILED)
        target_precompile_headers(${target} REUSE_FROM ${other})
    endif()
endfunction()
