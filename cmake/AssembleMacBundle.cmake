# Makes the folder of the macOS application around its program; plain file work, so it runs anywhere.
# cmake -DSOURCE= -DBUNDLE= -DEXECUTABLE= -DVERSION= -DMINIMUM_SYSTEM= -DSCRIPT= -DPLUGINS= -P AssembleMacBundle.cmake
#   SOURCE          the project's folder
#   BUNDLE          the Tarnwick.app to make; what was there goes
#   EXECUTABLE      the program
#   SCRIPT          the user script, compiled; without the AppleScript compiler: empty, and the bundle has none
#   PLUGINS         the built Finder extension and service to carry, separated by semicolons; may be empty
set(contents ${BUNDLE}/Contents)
file(REMOVE_RECURSE ${BUNDLE})
file(MAKE_DIRECTORY ${contents}/MacOS ${contents}/PlugIns)

get_filename_component(executable ${EXECUTABLE} NAME)
file(COPY ${EXECUTABLE} DESTINATION ${contents}/MacOS)
file(RENAME ${contents}/MacOS/${executable} ${contents}/MacOS/Tarnwick)

configure_file(${SOURCE}/resources/macos/Info.plist.in ${contents}/Info.plist @ONLY)
file(WRITE ${contents}/PkgInfo "APPL????")

file(COPY ${SOURCE}/resources/bundle/ DESTINATION ${contents}/Resources)
file(COPY ${SOURCE}/resources/macos/Tarnwick.icns DESTINATION ${contents}/Resources)
file(GLOB languages ${SOURCE}/resources/*.lproj)
file(COPY ${languages} DESTINATION ${contents}/Resources)
if(SCRIPT)
    file(COPY ${SCRIPT} DESTINATION ${contents}/Resources)
else()
    message(WARNING "No compiled user script: the application will have none to install")
endif()
foreach(plugin IN LISTS PLUGINS)
    file(COPY ${plugin} DESTINATION ${contents}/PlugIns)
endforeach()
