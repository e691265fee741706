# vekprt_add_consumer(NAME HEADER header SOURCES source... DESCRIPTION text
#                     [PACKAGES package... TARGETS target...] [MODULES module...] [REQUIRES module...] [NEEDS consumer...]
#                     [DEBIAN package...])
#
# Declares a consumer: the static library VEKPrt2DModel::NAME, installed with its public header as the component NAME of
# the package and the pkg-config module VEKPrt2DModelNAME.  It is built where its libraries are found.
#
#   PACKAGES   what find_package looks for, and TARGETS, what is then linked; or
#   MODULES    what pkg-config looks for
#   REQUIRES   the pkg-config modules of PACKAGES, for the consumer's own module
#   NEEDS      other consumers that this one and its header are built on, declared before it
#   DEBIAN     what the Debian package of the headers depends on
function(vekprt_add_consumer name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "HEADER;DESCRIPTION" "SOURCES;PACKAGES;TARGETS;MODULES;REQUIRES;NEEDS;DEBIAN")
  set(find "")
  set(missing "")
  foreach(package IN LISTS arg_PACKAGES)
    find_package(${package} QUIET)
    if(NOT ${package}_FOUND)
      list(APPEND missing ${package})
    endif()
    string(APPEND find "find_dependency(${package})\n")
  endforeach()
  if(arg_MODULES)
    find_package(PkgConfig QUIET)
    if(PkgConfig_FOUND)
      pkg_check_modules(VEKPRT_${name} QUIET IMPORTED_TARGET ${arg_MODULES})
    endif()
    if(NOT VEKPRT_${name}_FOUND)
      list(APPEND missing ${arg_MODULES})
    endif()
    list(APPEND arg_TARGETS PkgConfig::VEKPRT_${name})
    list(JOIN arg_MODULES " " modules)
    string(APPEND find "find_dependency(PkgConfig)\n"
      "pkg_check_modules(VEKPRT_${name} REQUIRED QUIET IMPORTED_TARGET ${modules})\n")
  endif()
  set(needs "")
  set(needed "")
  foreach(other IN LISTS arg_NEEDS)
    if(NOT TARGET VEKPrt2DModel::${other})
      list(APPEND missing ${other})
    endif()
    list(APPEND needed VEKPrt2DModel::${other})
    list(APPEND needs VEKPrt2DModel${other}${VEKPRT_SUFFIX})
    string(APPEND find "include(\${CMAKE_CURRENT_LIST_DIR}/VEKPrt2DModel${other}.cmake)\n")
  endforeach()
  if(missing)
    list(JOIN missing ", " missing)
    list(JOIN arg_DEBIAN ", " packages)
    set_property(GLOBAL APPEND PROPERTY VEKPRT_CONSUMER_SUMMARY "consumer ${name}: not built, ${missing} not found (Debian: ${packages})")
    return()
  endif()
  set_property(GLOBAL APPEND PROPERTY VEKPRT_CONSUMER_SUMMARY "consumer ${name}: built")

  string(TOLOWER vekprt_${name} target)
  add_library(${target} STATIC ${arg_SOURCES})
  add_library(VEKPrt2DModel::${name} ALIAS ${target})
  vekprt_configure(${target})
  get_filename_component(include ${CMAKE_CURRENT_SOURCE_DIR}/${arg_HEADER} DIRECTORY)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${include}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/vekprt2dmodel>)
  target_compile_features(${target} INTERFACE cxx_std_11)
  target_link_libraries(${target} PUBLIC ${needed} VEKPrt2DModel PRIVATE ${arg_TARGETS})
  # Position-independent: a host may link it into a library of its own.
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${name} OUTPUT_NAME VEKPrt2DModel${name}${VEKPRT_SUFFIX} POSITION_INDEPENDENT_CODE ON
    PUBLIC_HEADER ${CMAKE_CURRENT_SOURCE_DIR}/${arg_HEADER})

  # What cmake/Install.cmake needs to know of it.
  list(JOIN arg_REQUIRES " " requires)
  list(JOIN arg_MODULES " " modules)
  list(JOIN needs " " needs)
  set_property(GLOBAL APPEND PROPERTY VEKPRT_CONSUMERS ${name})
  set_property(GLOBAL PROPERTY VEKPRT_${name}_TARGET ${target})
  set_property(GLOBAL PROPERTY VEKPRT_${name}_DEBIAN "${arg_DEBIAN}")
  set_property(GLOBAL PROPERTY VEKPRT_${name}_DESCRIPTION "${arg_DESCRIPTION}")
  set_property(GLOBAL PROPERTY VEKPRT_${name}_FIND "${find}")
  set_property(GLOBAL PROPERTY VEKPRT_${name}_REQUIRES "VEKPrt2DModel${VEKPRT_SUFFIX} ${requires} ${modules} ${needs}")
endfunction()
