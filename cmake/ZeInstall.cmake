# What `cmake --install` puts where, by component:
#   runtime  the shared objects (the library and the interface manager's C
#            client) with their SONAMEs and version links
#   devel    public headers, the unversioned links, pkg-config files, CMake package
#   host     the PC stand-ins for the terminal: host platform libraries and
#            their headers and pkg-config files, the simulator, zesh and its
#            man page
# A new installed library is one ze_install_library() and one
# ze_install_pkgconfig() call below.
include(CMakePackageConfigHelpers)

set(ZE_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/ze_adapter)
set(ZE_INSTALL_PKGCONFIGDIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# Installs a shared library into an export set of the CMake package, with its
# public headers under include/HEADER_DIR.
function(ze_install_library target)
  cmake_parse_arguments(arg "" "EXPORT;RUNTIME;DEVEL;HEADER_DIR" "HEADERS" ${ARGN})
  install(TARGETS ${target} EXPORT ${arg_EXPORT}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
      COMPONENT ${arg_RUNTIME} NAMELINK_COMPONENT ${arg_DEVEL})
  if(arg_HEADERS)
    install(FILES ${arg_HEADERS}
      DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${arg_HEADER_DIR} COMPONENT ${arg_DEVEL})
  endif()
endfunction()

# Writes and installs NAME.pc. Its prefix is found from the file's own place,
# so an installed tree can be moved (a scratch root, dpkg -x) and still works.
function(ze_install_pkgconfig name)
  cmake_parse_arguments(pc "" "DESCRIPTION;COMPONENT;REQUIRES;CFLAGS;LIBS" "" ${ARGN})
  file(RELATIVE_PATH pc_to_prefix /${ZE_INSTALL_PKGCONFIGDIR} /)
  string(REGEX REPLACE "/$" "" pc_to_prefix "${pc_to_prefix}")
  set(pc_name ${name})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/pkgconfig.pc.in
    ${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc
    DESTINATION ${ZE_INSTALL_PKGCONFIGDIR} COMPONENT ${pc_COMPONENT})
endfunction()

# ---- The adapter library ---------------------------------------------------
file(GLOB ZE_PUBLIC_HEADERS ${PROJECT_SOURCE_DIR}/include/*.h)
ze_install_library(ze_adapter EXPORT ze_adapter-targets RUNTIME runtime DEVEL devel
  HEADER_DIR ze_adapter HEADERS ${ZE_PUBLIC_HEADERS})
# The platform libraries are named, not linked into the library: on the PC the
# host platform's .pc files answer, on the terminal its own platform's.
ze_install_pkgconfig(ze_adapter COMPONENT devel
  DESCRIPTION "${PROJECT_DESCRIPTION}"
  REQUIRES "ze_ubasic ze_dp"
  CFLAGS "-I\${includedir}/ze_adapter"
  LIBS "-L\${libdir} -lze_adapter")

install(EXPORT ze_adapter-targets NAMESPACE ze_adapter::
  DESTINATION ${ZE_INSTALL_CMAKEDIR} COMPONENT devel)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ze_adapterConfig.cmake.in
  ${PROJECT_BINARY_DIR}/cmake/ze_adapterConfig.cmake
  INSTALL_DESTINATION ${ZE_INSTALL_CMAKEDIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/cmake/ze_adapterConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/cmake/ze_adapterConfig.cmake
  ${PROJECT_BINARY_DIR}/cmake/ze_adapterConfigVersion.cmake
  DESTINATION ${ZE_INSTALL_CMAKEDIR} COMPONENT devel)

# ---- The interface manager's C client ----------------------------------------
# Installed with the library: a management process on the terminal or a PC
# calls commands of a `zesh serve` daemon through it.
ze_install_library(ze_ifm_wire EXPORT ze_adapter-targets RUNTIME devel DEVEL devel
  HEADER_DIR ze_adapter HEADERS ${PROJECT_SOURCE_DIR}/client/include/ze_ifm_wire.h)
ze_install_library(ze_ifm_client EXPORT ze_adapter-targets RUNTIME runtime DEVEL devel
  HEADER_DIR ze_adapter HEADERS ${PROJECT_SOURCE_DIR}/client/include/ze_ifm_client.h)
ze_install_pkgconfig(ze_ifm_client COMPONENT devel
  DESCRIPTION "C client of the switch adapter's interface manager daemon"
  CFLAGS "-I\${includedir}/ze_adapter"
  LIBS "-L\${libdir} -lze_ifm_client")

# ---- Host tools --------------------------------------------------------------
if(ZE_BUILD_HOST_TOOLS)
  # Installed host libraries find each other, and zesh finds them, beside
  # themselves wherever the tree lands.
  file(RELATIVE_PATH ze_bin_to_lib /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
  set_target_properties(ze_sim ze_ubasic ze_dp PROPERTIES INSTALL_RPATH "$ORIGIN")
  set_target_properties(zesh PROPERTIES INSTALL_RPATH "$ORIGIN/${ze_bin_to_lib}")

  set(ze_platform_dir ${PROJECT_SOURCE_DIR}/platform/include)
  ze_install_library(ze_sim EXPORT ze_adapter-platform-targets RUNTIME host DEVEL host)
  ze_install_library(ze_ubasic EXPORT ze_adapter-platform-targets RUNTIME host DEVEL host
    HEADER_DIR ze_platform HEADERS ${ze_platform_dir}/ze_ubasic.h ${ze_platform_dir}/ze_host.h)
  ze_install_library(ze_dp EXPORT ze_adapter-platform-targets RUNTIME host DEVEL host
    HEADER_DIR ze_platform HEADERS ${ze_platform_dir}/ze_dp.h)
  ze_install_pkgconfig(ze_ubasic COMPONENT host
    DESCRIPTION "Host platform basic services on the datapath simulator"
    CFLAGS "-I\${includedir}/ze_platform"
    LIBS "-L\${libdir} -lze_ubasic")
  ze_install_pkgconfig(ze_dp COMPONENT host
    DESCRIPTION "Host platform datapath API on the datapath simulator"
    REQUIRES "ze_ubasic"
    LIBS "-L\${libdir} -lze_dp")
  install(EXPORT ze_adapter-platform-targets NAMESPACE ze_adapter::
    DESTINATION ${ZE_INSTALL_CMAKEDIR} COMPONENT host)

  install(TARGETS zesh RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT host)
  install(FILES ${PROJECT_SOURCE_DIR}/tools/zesh/zesh.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT host)
endif()
