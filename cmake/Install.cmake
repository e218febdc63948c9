# What `cmake --install` puts where, in three parts that can be installed alone (--component):
#   library      the component, libVelmarExportacion.so
#   development  the rooms as static libraries with their headers, the CMake package VelmarExportacion, the
#                documents and examples
#   sample       the sample host's programs, with menu entry, icon, manual page and completion
# A build of some rooms only is no product, and installs nothing.

if(NOT TARGET VelmarExportacion)
  return()
endif()

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
  WORLD_READ WORLD_EXECUTE)

set(VELMAR_INSTALL_CMAKE "${CMAKE_INSTALL_LIBDIR}/cmake/VelmarExportacion")
set(VELMAR_INSTALL_DOC "${CMAKE_INSTALL_DATADIR}/doc/libvelmarexportacion-dev")

# velmar_install(export target...)
# Headers keep the spelling of the project: include/velmar/platform/text/Case.h is "platform/text/Case.h".
function(velmar_install export)
  install(TARGETS ${ARGN} EXPORT ${export}
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}/velmar" COMPONENT development
    FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/velmar" COMPONENT development)
endfunction()

# velmar_bundle(name export room...)
# A target under a name of its own, for those who use several rooms for one purpose.
function(velmar_bundle name export)
  string(TOLOWER "velmar_bundle_${name}" target)
  add_library(${target} INTERFACE)
  target_link_libraries(${target} INTERFACE ${ARGN})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
  install(TARGETS ${target} EXPORT ${export})
endfunction()

# velmar_compress(file name)
# A file of the project compressed under this name, as `compressed`: manual pages and changelogs are kept so.
function(velmar_compress file name)
  set(result "${PROJECT_BINARY_DIR}/packaging/${name}")
  file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/packaging")
  execute_process(COMMAND gzip -9nc "${PROJECT_SOURCE_DIR}/${file}" OUTPUT_FILE "${result}"
    COMMAND_ERROR_IS_FATAL ANY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${file}")
  set(compressed "${result}" PARENT_SCOPE)
endfunction()

set(qtRooms "")
foreach(room IN LISTS VELMAR_ROOMS)
  string(REPLACE "/" "_" target "${room}")
  if(NOT TARGET ${target} OR room MATCHES "^sample(/|$)")
    continue()
  elseif(room MATCHES "^qt(/|$)")
    list(APPEND qtRooms ${target})
  else()
    velmar_install(VelmarExportacionTargets ${target})
  endif()
endforeach()

velmar_bundle(Host VelmarExportacionTargets host_interfaces platform_com platform_toolkit platform_controls
  platform_ado platform_error)
velmar_bundle(Linked VelmarExportacionTargets host)
velmar_bundle(Scripted VelmarExportacionTargets platform_toolkit wizard)
if(qtRooms)
  velmar_install(VelmarExportacionQtTargets ${qtRooms})
  velmar_bundle(Qt VelmarExportacionQtTargets ${qtRooms})
  install(EXPORT VelmarExportacionQtTargets NAMESPACE VelmarExportacion:: DESTINATION "${VELMAR_INSTALL_CMAKE}"
    COMPONENT development)
endif()

# Hosts load the component by the name that carries its interface's number. It is the file itself and no link
# to it, since registration notes where the file is: an update must find the same place.
set_target_properties(VelmarExportacion PROPERTIES SOVERSION 0 EXPORT_NAME Component)
install(TARGETS VelmarExportacion EXPORT VelmarExportacionTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT library NAMELINK_COMPONENT development)
install(EXPORT VelmarExportacionTargets NAMESPACE VelmarExportacion:: DESTINATION "${VELMAR_INSTALL_CMAKE}"
  COMPONENT development)

string(REGEX MATCH "^[0-9]+" VELMAR_COMPILER_MAJOR "${CMAKE_CXX_COMPILER_VERSION}")
configure_package_config_file(cmake/VelmarExportacionConfig.cmake.in VelmarExportacionConfig.cmake
  INSTALL_DESTINATION "${VELMAR_INSTALL_CMAKE}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/VelmarExportacionConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/VelmarExportacionConfig.cmake"
  "${PROJECT_BINARY_DIR}/VelmarExportacionConfigVersion.cmake"
  DESTINATION "${VELMAR_INSTALL_CMAKE}" COMPONENT development)
# The pages with their pictures, without what is about making these.
install(DIRECTORY docs/ DESTINATION "${VELMAR_INSTALL_DOC}" COMPONENT development
  FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN README.md EXCLUDE PATTERN screenshots EXCLUDE)
install(DIRECTORY examples DESTINATION "${VELMAR_INSTALL_DOC}" COMPONENT development)

install(TARGETS velmar_sample RUNTIME COMPONENT sample)
velmar_compress(packaging/velmar_sample.1 velmar_sample.1.gz)
install(FILES "${compressed}" DESTINATION "${CMAKE_INSTALL_MANDIR}/es/man1" COMPONENT sample)
install(FILES packaging/velmar_sample.bash
  DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT sample RENAME velmar_sample)
if(TARGET velmar_sample_window)
  if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    # It loads the component by its name, and in a folder of its own no loader would look for that.
    file(RELATIVE_PATH libraries "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
    set_target_properties(velmar_sample_window PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
  endif()
  install(TARGETS velmar_sample_window RUNTIME COMPONENT sample)
  velmar_compress(packaging/velmar_sample_window.1 velmar_sample_window.1.gz)
  install(FILES "${compressed}" DESTINATION "${CMAKE_INSTALL_MANDIR}/es/man1" COMPONENT sample)
  install(FILES packaging/velmar-muestra.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications"
    COMPONENT sample)
  install(FILES packaging/velmar-muestra.svg
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps" COMPONENT sample)
endif()
