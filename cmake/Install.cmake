# Installs the libraries, their headers, and what find_package and pkg-config look for.
include(CMakePackageConfigHelpers)
set(VEKPRT_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/VEKPrt2DModel)

install(TARGETS VEKPrt2DModel EXPORT VEKPrt2DModelTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  PUBLIC_HEADER DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vekprt2dmodel)
install(EXPORT VEKPrt2DModelTargets NAMESPACE VEKPrt2DModel:: DESTINATION ${VEKPRT_PACKAGE_DIR})

# The framework is installed only where it is the reference implementation; a host ships its own, and says by its
# own means how it is linked against.
if(TARGET VEKFramework)
  install(TARGETS VEKFramework EXPORT VEKFrameworkTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    PUBLIC_HEADER DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vekframework)
  install(EXPORT VEKFrameworkTargets NAMESPACE VEK:: DESTINATION ${VEKPRT_PACKAGE_DIR})
  file(RELATIVE_PATH VEKPRT_LIBDIR_TO_INCLUDE ${CMAKE_INSTALL_FULL_LIBDIR} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/VEKPrt2DModel.pc.in ${PROJECT_BINARY_DIR}/VEKPrt2DModel.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/VEKPrt2DModel.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/VEKPrt2DModelConfig.cmake.in
  ${PROJECT_BINARY_DIR}/VEKPrt2DModelConfig.cmake INSTALL_DESTINATION ${VEKPRT_PACKAGE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VEKPrt2DModelConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VEKPrt2DModelConfig.cmake ${PROJECT_BINARY_DIR}/VEKPrt2DModelConfigVersion.cmake
  DESTINATION ${VEKPRT_PACKAGE_DIR})
