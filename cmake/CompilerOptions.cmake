# What every target of this project is compiled with.
add_library(tarnwick_warnings INTERFACE)
target_compile_options(tarnwick_warnings INTERFACE -Wall -Wextra -Wconversion)
if(NOT APPLE)
    # Apple's next headers may call something old that these sources still need.
    target_compile_options(tarnwick_warnings INTERFACE -Werror)
endif()

# The core sees the project's own headers from the root and nothing but the standard library.
add_library(tarnwick_core_options INTERFACE)
target_include_directories(tarnwick_core_options INTERFACE ${PROJECT_SOURCE_DIR})
target_link_libraries(tarnwick_core_options INTERFACE tarnwick_warnings)

if(TARNWICK_SANITIZERS)
    add_compile_options(-fsanitize=${TARNWICK_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${TARNWICK_SANITIZERS})
endif()
if(TARNWICK_COVERAGE)
    target_compile_options(tarnwick_core_options INTERFACE -fprofile-instr-generate -fcoverage-mapping)
    target_link_options(tarnwick_core_options INTERFACE -fprofile-instr-generate -fcoverage-mapping)
endif()
if(TARNWICK_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
