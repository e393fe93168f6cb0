# The macOS application as it is delivered: Tarnwick.app with everything in it, signed, and a disk image.
set(TARNWICK_SIGNING_IDENTITY "-" CACHE STRING
    "The name of the identity that codesign signs with; \"-\" signs for this machine only, empty does not sign")
set(TARNWICK_PLUGINS "" CACHE STRING "Built plug-ins to carry (the Finder extension, the service), absolute paths")

# tarnwick_mac_bundle(TARGET): assembles and signs ${PROJECT_BINARY_DIR}/TARGET.app after each build of the target.
function(tarnwick_mac_bundle target)
    set(bundle ${PROJECT_BINARY_DIR}/${target}.app)
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

    set(source ${PROJECT_SOURCE_DIR}/resources/script/applescript.applescript)
    set(script ${PROJECT_BINARY_DIR}/applescript.scpt)
    find_program(TARNWICK_OSACOMPILE osacompile)
    if(TARNWICK_OSACOMPILE)
        add_custom_command(OUTPUT ${script} COMMAND ${TARNWICK_OSACOMPILE} -o ${script} ${source} DEPENDS ${source})
    else()
        set(script "")
    endif()

    file(GLOB_RECURSE resources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/bundle/*
        ${PROJECT_SOURCE_DIR}/resources/*.lproj/* ${PROJECT_SOURCE_DIR}/resources/macos/*)
    set(entitlements ${PROJECT_SOURCE_DIR}/resources/macos/Tarnwick.entitlements)
    set(sign)
    if(TARNWICK_SIGNING_IDENTITY)
        # What notarisation asks for; elsewhere the hardened runtime would do no more than refuse the user script's
        # events to the Finder. Plug-ins come signed by their own build.
        set(notarised)
        if(TARNWICK_SIGNING_IDENTITY MATCHES "^Developer ID ")
            set(notarised --options runtime --timestamp)
        endif()
        set(sign COMMAND codesign --force ${notarised} --entitlements ${entitlements}
            --sign ${TARNWICK_SIGNING_IDENTITY} ${bundle})
    endif()
    set(stamp ${PROJECT_BINARY_DIR}/${target}-bundle.stamp)
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -DSOURCE=${PROJECT_SOURCE_DIR} -DBUNDLE=${bundle}
            -DEXECUTABLE=$<TARGET_FILE:${target}> -DVERSION=${PROJECT_VERSION}
            -DMINIMUM_SYSTEM=${CMAKE_OSX_DEPLOYMENT_TARGET} -DSCRIPT=${script} "-DPLUGINS=${TARNWICK_PLUGINS}"
            -P ${PROJECT_SOURCE_DIR}/cmake/AssembleMacBundle.cmake
        ${sign}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${target} ${resources} ${script} ${PROJECT_SOURCE_DIR}/cmake/AssembleMacBundle.cmake
        COMMENT "Assembling ${target}.app"
        VERBATIM)
    add_custom_target(${target}_resources ALL DEPENDS ${stamp})

    install(DIRECTORY ${bundle} DESTINATION . USE_SOURCE_PERMISSIONS)
    set(CPACK_GENERATOR DragNDrop)
    set(CPACK_PACKAGE_FILE_NAME ${target}-${PROJECT_VERSION})
    set(CPACK_DMG_VOLUME_NAME ${target})
    include(CPack)
endfunction()
