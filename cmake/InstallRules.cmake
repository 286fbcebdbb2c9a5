# SPDX-License-Identifier: MIT
# What `cmake --install` lays down: the package LumetraPresetsUtil for those who build against the
# library, and the programs with what they read at run time.
include(CMakePackageConfigHelpers)

set(LUMETRA_PACKAGE "LumetraPresetsUtil${LUMETRA_QT_SUFFIX}")
set(LUMETRA_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/${LUMETRA_PACKAGE}")

# lumetra_install_headers(TARGET FOLDER PATTERN...): the target's headers with the generated export header;
# headers that match a PATTERN are the library's own business and stay behind.
function(lumetra_install_headers target folder)
    set(private_headers)
    foreach(pattern IN LISTS ARGN)
        list(APPEND private_headers PATTERN "${pattern}" EXCLUDE)
    endforeach()
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/${folder}/"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${target}${LUMETRA_QT_SUFFIX}"
        COMPONENT development
        FILES_MATCHING PATTERN "*.h" ${private_headers})
    install(FILES "${PROJECT_BINARY_DIR}/${folder}/${target}Export.h"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${target}${LUMETRA_QT_SUFFIX}"
        COMPONENT development)
endfunction()

lumetra_install_headers(ZorvikPlatform platform)
lumetra_install_headers(LumetraPresetsUtil library
    IntensitySettingEmpty.h NodeOrEmpty.h PersistentPlace.h SaturatedInt.h)

set_target_properties(LumetraPresetsUtil PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS ZorvikPlatform LumetraPresetsUtil
    EXPORT LumetraPresetsUtilTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        COMPONENT libraries NAMELINK_COMPONENT development)
install(EXPORT LumetraPresetsUtilTargets
    NAMESPACE Lumetra::
    DESTINATION "${LUMETRA_PACKAGE_DIR}"
    COMPONENT development)

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/LumetraPresetsUtilConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/cmake/${LUMETRA_PACKAGE}Config.cmake"
    INSTALL_DESTINATION "${LUMETRA_PACKAGE_DIR}")
# Before 1.0 a minor version may change the interface.
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/cmake/${LUMETRA_PACKAGE}ConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/cmake/${LUMETRA_PACKAGE}Config.cmake"
    "${PROJECT_BINARY_DIR}/cmake/${LUMETRA_PACKAGE}ConfigVersion.cmake"
    DESTINATION "${LUMETRA_PACKAGE_DIR}"
    COMPONENT development)

# What a module of the editor is built with: the component Plugin of the package.
if(TARGET lumetra-plugin-api)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/plugin/api/"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/LumetraEditorPlugin"
        COMPONENT development
        FILES_MATCHING PATTERN "*.h")
    install(TARGETS lumetra-plugin-api EXPORT LumetraEditorPluginTargets)
    install(EXPORT LumetraEditorPluginTargets
        NAMESPACE Lumetra::
        DESTINATION "${LUMETRA_PACKAGE_DIR}"
        COMPONENT development)
    file(RELATIVE_PATH LUMETRA_PREFIX_OF_PACKAGE "/${LUMETRA_PACKAGE_DIR}" "/")
    configure_file("${CMAKE_CURRENT_LIST_DIR}/LumetraEditorPlugin.cmake.in"
        "${PROJECT_BINARY_DIR}/cmake/LumetraEditorPlugin.cmake" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/cmake/LumetraEditorPlugin.cmake"
        DESTINATION "${LUMETRA_PACKAGE_DIR}"
        COMPONENT development)
endif()

install(FILES LICENSE LICENSES/MIT.txt LICENSES/GPL-2.0-or-later.txt
    DESTINATION "${CMAKE_INSTALL_DOCDIR}${LUMETRA_QT_SUFFIX}"
    COMPONENT libraries)

foreach(program IN ITEMS lumetra-presets lumetra-editor)
    if(TARGET ${program})
        file(RELATIVE_PATH libraries
            "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
        set_target_properties(${program} PROPERTIES
            INSTALL_RPATH "$ORIGIN/${libraries};$ORIGIN/${libraries}/lumetra")
        install(TARGETS ${program}
            RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
            COMPONENT programs)
    endif()
endforeach()
if(LUMETRA_BUILD_HOST AND EXISTS "${PROJECT_SOURCE_DIR}/catalogue")
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/catalogue"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/lumetra"
        COMPONENT programs
        PATTERN CMakeLists.txt EXCLUDE)
endif()
