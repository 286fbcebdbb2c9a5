# SPDX-License-Identifier: MIT
# lumetra_editor_plugin(TARGET): the module TARGET is built into, and installed into, the folder that the
# editor loads its modules from. Its version is the project's.
function(lumetra_editor_plugin target)
    set_property(TARGET ${target} APPEND PROPERTY AUTOMOC_MOC_OPTIONS "-MmoduleVersion=${PROJECT_VERSION}")
    set_target_properties(${target} PROPERTIES
        LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib/lumetra/plugins"
        INSTALL_RPATH "$ORIGIN/../..")
    install(TARGETS ${target}
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/lumetra/plugins"
        COMPONENT programs)
endfunction()
