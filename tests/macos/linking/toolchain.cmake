# Builds for macOS on Debian, with its clang and its linker, against the declarations beside this folder and the stubs that
# make-root has made.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
cmake_path(ABSOLUTE_PATH CMAKE_CURRENT_LIST_DIR NORMALIZE OUTPUT_VARIABLE linking)
cmake_path(SET macosChecks NORMALIZE ${linking}/..)
cmake_path(SET root NORMALIZE ${linking}/../../../build/macos-sdk)
set(llvm /usr/lib/llvm-14/bin)

set(CMAKE_OSX_SYSROOT ${root} CACHE PATH "What stands for the SDK")
foreach(language CXX OBJCXX)
    set(CMAKE_${language}_COMPILER ${llvm}/clang++)
    set(CMAKE_${language}_COMPILER_TARGET x86_64-apple-macos)
    string(REPLACE CXX c++ name ${language})
    string(REPLACE OBJ objective- name ${name})
    execute_process(COMMAND ${macosChecks}/apple-flags ${name} OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "\n" " " flags ${flags})
    # In bin is what the compiler calls to make one file of two processors'.
    set(CMAKE_${language}_FLAGS_INIT "${flags} -B${root}/bin")
    set(CMAKE_${language}_STANDARD_LIBRARIES_INIT -lversiontest)
    # An archive of objects for two processors is two archives; the plain archiver knows only one.
    set(CMAKE_${language}_ARCHIVE_CREATE "${llvm}/llvm-libtool-darwin -static -o <TARGET> <OBJECTS>")
    set(CMAKE_${language}_ARCHIVE_FINISH "")
endforeach()
set(CMAKE_EXE_LINKER_FLAGS_INIT "-fuse-ld=lld -stdlib=libc++ -Wl,-adhoc_codesign")
set(CMAKE_INSTALL_NAME_TOOL ${llvm}/llvm-install-name-tool)

# GoogleTest is built along.
set(CMAKE_MODULE_PATH ${linking})
