# Packages: "cpack -G DEB" makes one for each component, "cpack --config CPackSourceConfig.cmake" the sources.
set(RQM5_MAINTAINER "RQ-M5 clone utility authors <authors@rq-m5-clone.invalid>" CACHE STRING
    "Whom a package names as the one to write to")

set(CPACK_PACKAGE_NAME rq-m5)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${RQM5_MAINTAINER})
# Anything but this default would stand in front of what each package says of itself.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${CMAKE_PROJECT_NAME} built using CMake")
set(CPACK_STRIP_FILES ON)

get_property(CPACK_COMPONENTS_ALL GLOBAL PROPERTY RQM5_COMPONENTS)
list(REMOVE_DUPLICATES CPACK_COMPONENTS_ALL)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION hamradio)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(RQM5_HOMEPAGE)
  set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${RQM5_HOMEPAGE})
endif()

set(about "The memory of the receiver is read through a serial cable: 1210 channels in
fifty banks, the VFO bands and the settings. It is edited, kept in files, and
written back.
")
set(CPACK_COMPONENT_RQ-M5_DESCRIPTION "clone utility for the RQ-M5 receiver (command line)
${about}
This package has rq-m5, the program for the command line and for scripts.")
set(CPACK_COMPONENT_RQ-M5-CLONE_DESCRIPTION "clone utility for the RQ-M5 receiver (desktop)
${about}
This package has rq-m5-clone, the program for the desktop.")
set(CPACK_COMPONENT_RQ-M5-SIM_DESCRIPTION "simulated RQ-M5 receiver
${about}
This package has rq-m5-sim, which answers on a pseudo-terminal as the receiver
does, so that the programs can be tried without one.")
foreach(name RQ-M5 RQ-M5-CLONE RQ-M5-SIM)
  string(TOLOWER ${name} package)
  set(CPACK_DEBIAN_${name}_PACKAGE_NAME ${package})
  # No header of the package may name the component a second time.
  set(CPACK_COMPONENT_${name}_DISPLAY_NAME ${package})
endforeach()
# The window keeps its icons as SVG, takes the texts of standard buttons from Qt, draws notes in any script, and the
# simulator lets people try it.
set(CPACK_DEBIAN_RQ-M5-CLONE_PACKAGE_DEPENDS "libqt6svg6, qt6-translations-l10n")
set(CPACK_DEBIAN_RQ-M5-CLONE_PACKAGE_RECOMMENDS "fonts-dejavu-core, fonts-ipafont-gothic")
set(CPACK_DEBIAN_RQ-M5-CLONE_PACKAGE_SUGGESTS "rq-m5-sim")
# Notes in PDF pages are in any script.
set(CPACK_DEBIAN_RQ-M5_PACKAGE_RECOMMENDS "fonts-dejavu-core, fonts-ipafont-gothic")
set(CPACK_DEBIAN_RQ-M5_PACKAGE_SUGGESTS "rq-m5-clone, rq-m5-sim")

# Licence and changes, where the distribution wants them.
configure_file(deb/changelog.in changelog.Debian @ONLY)
rqm5_compress(changelog.Debian.gz ${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian)
rqm5_compress(changelog.gz ${CMAKE_SOURCE_DIR}/CHANGELOG.md)
foreach(component ${CPACK_COMPONENTS_ALL})
  configure_file(deb/overrides.in overrides/${component} @ONLY)
  install(FILES deb/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian.gz
                ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
          DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${component} COMPONENT ${component})
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/overrides/${component}
          DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides COMPONENT ${component})
endforeach()

set(CPACK_SOURCE_GENERATOR TXZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME rq-m5-${PROJECT_VERSION})
# What git ignores is nobody else's business either: builds, and memories that ./run read from somebody's receiver.
string(REGEX REPLACE "[^A-Za-z0-9/_-]" "." here "${CMAKE_SOURCE_DIR}")
set(CPACK_SOURCE_IGNORE_FILES "/[.]git/" "/[.]git$" "^${here}/build[^/]*/" "/[.]cache/" "[.]user$"
    "/receiver-[^/]*[.]RQ5$" "/compile_commands[.]json$" "[.]swp$" "~$")
include(CPack)
