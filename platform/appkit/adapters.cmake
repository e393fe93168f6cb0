# The ports over Foundation and AppKit, and those that this platform alone can provide.
add_library(tarnwick_appkit_adapters OBJECT
    AlertsAdapter.mm
    ApplicationBundleAdapter.mm
    DeferredWork.mm
    FileManagerAdapter.mm
    ImagesAdapter.mm
    KnownFoldersAdapter.mm
    OpenPanelAdapter.mm
    PlistConversion.mm
    PreferenceStoresAdapter.mm
    ProcessControlAdapter.mm
    PropertyListsAdapter.mm
    RunningApplicationsAdapter.mm
    ShellTaskAdapter.mm
    StringConversion.mm
    SystemLogAdapter.mm
    WorkspaceAdapter.mm)
target_link_libraries(tarnwick_appkit_adapters PUBLIC tarnwick_appkit_flags tarnwick_prefs)

if(APPLE)
    add_subdirectory(../macos ${CMAKE_CURRENT_BINARY_DIR}/adapters)
else()
    add_subdirectory(../gnustep/adapters ${CMAKE_CURRENT_BINARY_DIR}/adapters)
endif()
