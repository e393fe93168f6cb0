# GoogleTest for macOS from the sources that Debian packs, under the names that CMake's own module gives.
set(googletest /usr/src/googletest/googletest)
add_library(macos_gtest STATIC ${googletest}/src/gtest-all.cc)
add_library(macos_gtest_main STATIC ${googletest}/src/gtest_main.cc)
target_include_directories(macos_gtest SYSTEM PUBLIC ${googletest}/include ${CMAKE_CURRENT_LIST_DIR}/googletest
    PRIVATE ${googletest})
target_compile_options(macos_gtest PRIVATE -w)
# Nobody here runs the tests: they are compiled as quickly as can be.
target_compile_options(macos_gtest PUBLIC -O0)
target_link_libraries(macos_gtest_main PUBLIC macos_gtest)
add_library(GTest::gtest ALIAS macos_gtest)
add_library(GTest::gtest_main ALIAS macos_gtest_main)
set(GTest_FOUND TRUE)
