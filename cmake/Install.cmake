# What `cmake --install` puts down: headers, libraries, the CMake package and the pkg-config files.

include(CMakePackageConfigHelpers)

set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

# Installs a library of the current folder as a component of the package, with the headers of its sub-folders. A folder
# "qt" is a library of its own.
function(qncal_install_library target component headerFolder)
    install(TARGETS ${target} EXPORT ${component}Targets)
    install(DIRECTORY ./ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${headerFolder} FILES_MATCHING PATTERN "*.h"
            PATTERN qt EXCLUDE)
    install(EXPORT ${component}Targets FILE qnCalSetupCtrl-${component}.cmake NAMESPACE qncal::
            DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/qnCalSetupCtrl)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${target}.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

# The files that find_package(qnCalSetupCtrl) reads first.
function(qncal_install_package)
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/qnCalSetupCtrl)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/qnCalSetupCtrlConfig.cmake.in
                                  ${PROJECT_BINARY_DIR}/qnCalSetupCtrlConfig.cmake INSTALL_DESTINATION ${folder})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/qnCalSetupCtrlConfigVersion.cmake
                                     COMPATIBILITY SameMajorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/qnCalSetupCtrlConfig.cmake
                  ${PROJECT_BINARY_DIR}/qnCalSetupCtrlConfigVersion.cmake DESTINATION ${folder})
endfunction()
