# Where the project is installed, in four components: Library (what a host program loads), Cameras (our camera
# library), Tool and Development. On Windows the libraries, the tool and their Qt share the one folder that the
# library gives to Qt as its plug-in folder; elsewhere the usual folders are used and Qt is the system's.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

if(WIN32)
    set(ZETO_INSTALL_BIN bin/win64_x64)
    set(ZETO_INSTALL_LIB ${ZETO_INSTALL_BIN})
    set(ZETO_INSTALL_IMPORT lib/win64_x64)
    set(ZETO_INSTALL_CMAKE lib/cmake/ZetoCameraGuiApi)
else()
    set(ZETO_INSTALL_BIN ${CMAKE_INSTALL_BINDIR})
    set(ZETO_INSTALL_LIB ${CMAKE_INSTALL_LIBDIR})
    set(ZETO_INSTALL_IMPORT ${CMAKE_INSTALL_LIBDIR})
    set(ZETO_INSTALL_CMAKE ${CMAKE_INSTALL_LIBDIR}/cmake/ZetoCameraGuiApi)
endif()
set(ZETO_INSTALL_INCLUDE ${CMAKE_INSTALL_INCLUDEDIR})
set(ZETO_INSTALL_DOC share/doc/ZetoCameraGuiApi)

# zeto_install_library(COMPONENT EXPORT TARGETS...)
function(zeto_install_library component export)
    install(TARGETS ${ARGN} EXPORT ${export}
        RUNTIME DESTINATION ${ZETO_INSTALL_BIN} COMPONENT ${component}
        LIBRARY DESTINATION ${ZETO_INSTALL_LIB} COMPONENT ${component}
        ARCHIVE DESTINATION ${ZETO_INSTALL_IMPORT} COMPONENT Development
        INCLUDES DESTINATION ${ZETO_INSTALL_INCLUDE})
endfunction()

set(library_targets ZetoCameraGuiApi zeto_genicam)
if(TARGET ZetoGenApi)
    list(APPEND library_targets ZetoGenApi)
    set_target_properties(ZetoGenApi PROPERTIES EXPORT_NAME GenApi)
endif()
set_target_properties(zeto_genicam PROPERTIES EXPORT_NAME GenICam)
set_target_properties(zeto_camera_api PROPERTIES EXPORT_NAME CameraApi)
zeto_install_library(Library ZetoCameraGuiApiTargets ${library_targets} zeto_camera_api)
if(TARGET ZetoCameraApi)
    set_target_properties(ZetoCameraApi PROPERTIES EXPORT_NAME Cameras)
    zeto_install_library(Cameras ZetoCameraGuiApiCameras ZetoCameraApi)
endif()
if(ZETO_BUILD_APPS)
    install(TARGETS zetocameratool RUNTIME DESTINATION ${ZETO_INSTALL_BIN} COMPONENT Tool)
endif()

if(WIN32)
    install(FILES ${ZETO_RUNTIME_LIBRARIES} DESTINATION ${ZETO_INSTALL_BIN} COMPONENT Library)
    foreach(kind IN LISTS ZETO_RUNTIME_PLUGINS)
        install(FILES ${ZETO_RUNTIME_${kind}} DESTINATION ${ZETO_INSTALL_BIN}/${kind} COMPONENT Library)
    endforeach()
endif()
if(MINGW) # what the tool chain's libraries ask to be handed on with them
    install(DIRECTORY "${ZETO_WINDOWS_QT}/licenses/" DESTINATION licenses/qt COMPONENT Library)
    install(FILES /usr/share/doc/gcc-mingw-w64-x86-64-posix-runtime/copyright
        DESTINATION licenses/gcc COMPONENT Library)
    install(FILES /usr/share/common-licenses/GPL-3 DESTINATION licenses/gcc COMPONENT Library)
    install(FILES /usr/share/doc/mingw-w64-common/copyright DESTINATION licenses/mingw-w64 COMPONENT Library)
endif()

# The interfaces keep folders of their own, so that a GenICam SDK or a maker's camera library can take their place.
install(DIRECTORY include/ DESTINATION ${ZETO_INSTALL_INCLUDE} COMPONENT Development)
install(DIRECTORY interfaces/ZetoCameraApi DESTINATION ${ZETO_INSTALL_INCLUDE} COMPONENT Development)
if(TARGET ZetoGenApi)
    install(DIRECTORY interfaces/ DESTINATION ${ZETO_INSTALL_INCLUDE}/ZetoGenICam COMPONENT Development
        FILES_MATCHING PATTERN "*.h" PATTERN ZetoCameraApi EXCLUDE)
endif()
install(FILES README.md CHANGELOG.md DESTINATION ${ZETO_INSTALL_DOC} COMPONENT Development)
install(DIRECTORY examples/ DESTINATION ${ZETO_INSTALL_DOC}/examples COMPONENT Development
    PATTERN CMakeLists.txt EXCLUDE)
install(DIRECTORY docs/ DESTINATION ${ZETO_INSTALL_DOC}/docs COMPONENT Development)

# find_package(ZetoCameraGuiApi [COMPONENTS Cameras])
install(EXPORT ZetoCameraGuiApiTargets DESTINATION ${ZETO_INSTALL_CMAKE} COMPONENT Development
    NAMESPACE ZetoCameraGuiApi::)
if(TARGET ZetoCameraApi)
    install(EXPORT ZetoCameraGuiApiCameras DESTINATION ${ZETO_INSTALL_CMAKE} COMPONENT Development
        NAMESPACE ZetoCameraGuiApi::)
endif()
configure_package_config_file(cmake/ZetoCameraGuiApiConfig.cmake.in
    "${CMAKE_CURRENT_BINARY_DIR}/package/ZetoCameraGuiApiConfig.cmake"
    INSTALL_DESTINATION ${ZETO_INSTALL_CMAKE})
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/package/ZetoCameraGuiApiConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/package/ZetoCameraGuiApiConfig.cmake"
        "${CMAKE_CURRENT_BINARY_DIR}/package/ZetoCameraGuiApiConfigVersion.cmake"
        cmake/FindGenICam.cmake cmake/FindZetoCameraApi.cmake
    DESTINATION ${ZETO_INSTALL_CMAKE} COMPONENT Development)

if(UNIX)
    file(RELATIVE_PATH ZETO_PKGCONFIG_UP "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
    configure_file(cmake/ZetoCameraGuiApi.pc.in "${CMAKE_CURRENT_BINARY_DIR}/package/ZetoCameraGuiApi.pc" @ONLY)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/package/ZetoCameraGuiApi.pc"
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
endif()

# cpack makes one archive, whose folder is the one that ZETO_CAMSDK_ROOT names on Windows.
if(WIN32)
    set(CPACK_GENERATOR ZIP)
else()
    set(CPACK_GENERATOR TGZ)
endif()
set(CPACK_PACKAGE_VENDOR Zeto)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
