# Puts an application's resources where its platform looks for them.

# tarnwick_gnustep_bundle(TARGET): the layout of a GNUstep application around the program, so that it finds its
# resources when it is started from there.
function(tarnwick_gnustep_bundle target)
    set(bundle ${PROJECT_BINARY_DIR}/${target}.app)
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${bundle})
    configure_file(${PROJECT_SOURCE_DIR}/resources/Info-gnustep.plist.in
        ${bundle}/Resources/Info-gnustep.plist @ONLY)
    file(GLOB_RECURSE resources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/bundle/*
        ${PROJECT_SOURCE_DIR}/resources/*.lproj/* ${PROJECT_SOURCE_DIR}/resources/script/*)
    set(stamp ${PROJECT_BINARY_DIR}/${target}-resources.stamp)
    file(GLOB languages RELATIVE ${PROJECT_SOURCE_DIR}/resources CONFIGURE_DEPENDS
        ${PROJECT_SOURCE_DIR}/resources/*.lproj)
    set(copyLanguages)
    foreach(language IN LISTS languages)
        list(APPEND copyLanguages COMMAND ${CMAKE_COMMAND} -E copy_directory
            ${PROJECT_SOURCE_DIR}/resources/${language} ${bundle}/Resources/${language})
    endforeach()
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/resources/bundle ${bundle}/Resources
        ${copyLanguages}
        COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/resources/script/applescript.sh
            ${bundle}/Resources/applescript.scpt
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${resources}
        COMMENT "Copying the resources of ${target}.app")
    add_custom_target(${target}_resources ALL DEPENDS ${stamp})
    add_dependencies(${target} ${target}_resources)
endfunction()
