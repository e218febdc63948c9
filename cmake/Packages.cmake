# Debian packages, made by `cpack -G DEB` in a build folder: one for each part of the installation. Configure
# with -DCMAKE_INSTALL_PREFIX=/usr, so that libraries go where Debian looks for them; scripts/try-packages
# does all of it.

if(NOT TARGET VelmarExportacion)
  return()
endif()

set(VELMAR_MAINTAINER "VelmarExportacion <velmarexportacion@example.org>" CACHE STRING
  "Who answers for the packages: a name and an address in angle brackets")

file(STRINGS packaging/changelog newest LIMIT_COUNT 1)
if(NOT newest MATCHES "^velmarexportacion \\(${PROJECT_VERSION}-([0-9]+)\\)")
  message(FATAL_ERROR "packaging/changelog begins with '${newest}': add an entry for version ${PROJECT_VERSION}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE "${CMAKE_MATCH_1}")

velmar_compress(packaging/changelog changelog.Debian.gz)
foreach(part IN ITEMS library:libvelmarexportacion development:libvelmarexportacion-dev sample:velmar-muestra)
  string(REPLACE ":" ";" part "${part}")
  list(POP_FRONT part component package)
  install(FILES "${compressed}" packaging/copyright DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${package}"
    COMPONENT ${component})
  install(FILES packaging/lintian/${package} DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides"
    COMPONENT ${component})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_COMPONENTS_ALL library development sample)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_NAME velmarexportacion)
set(CPACK_PACKAGE_VENDOR VelmarExportacion)
set(CPACK_PACKAGE_CONTACT "${VELMAR_MAINTAINER}")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# Each package has a summary of its own; the project's would stand in front of it.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libvelmarexportacion)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/packaging/triggers")
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "export wizard for a charity's office, as a component
A host application hands its databases over; the user picks fields, filters
and a sort order in one window, and an \"Excel 8.0\" workbook comes out.

This package holds the component that a host loads at run time by its four
entry points. It needs a host: velmar-muestra has one.")

set(thisLibrary "libvelmarexportacion (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvelmarexportacion-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "${thisLibrary}, libsqlite3-dev, libicu-dev, libsodium-dev, pkg-config")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS "cmake, g++")
if(qtRooms)
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "qt6-base-dev, libgl-dev")
endif()
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "export wizard for a charity's office, development files
Headers and static libraries for hosts of the export wizard: the objects
that a host brings, the wizard itself to be linked in, a toolkit for runs
without a screen, and the platform below (Jet SQL over SQLite, recordsets,
\"Excel 8.0\" workbooks).

It comes with a CMake package, VelmarExportacion, and examples.")

set(CPACK_DEBIAN_SAMPLE_PACKAGE_NAME velmar-muestra)
set(CPACK_DEBIAN_SAMPLE_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_SAMPLE_PACKAGE_SHLIBDEPS ON)
# The window loads the component while it runs, which no tool sees.
set(CPACK_DEBIAN_SAMPLE_PACKAGE_DEPENDS "${thisLibrary}")
if(TARGET velmar_sample_window)
  # Qt's own dialogs in Spanish.
  set(CPACK_DEBIAN_SAMPLE_PACKAGE_RECOMMENDS "qt6-translations-l10n")
endif()
set(CPACK_DEBIAN_SAMPLE_DESCRIPTION "sample host of the export wizard for a charity's office
An invented charity with collaborators, donations and receipts: makes its
databases in any size, and runs the export wizard over them, on the command
line or in its window. The programs speak Spanish.")

include(CPack)
