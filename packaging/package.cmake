# The Debian packages, and the tarball of the portable folder; scripts/package.sh makes them. The
# sound takes many libraries, so its module is a package of its own.
string(REGEX REPLACE "^www\\." "" mail_host ${web_host})
set(CPACK_PACKAGE_CONTACT "The Orvanta developers <maintainers@${mail_host}>")

string(TIMESTAMP release_time "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(changelog ${CMAKE_CURRENT_BINARY_DIR}/changelog)
add_custom_command(
  OUTPUT ${changelog}
  COMMAND awk -v version=${PROJECT_VERSION} -v date=${release_time} -v by=${CPACK_PACKAGE_CONTACT}
          -f ${CMAKE_CURRENT_SOURCE_DIR}/debian_changelog.awk ${PROJECT_SOURCE_DIR}/CHANGELOG.md
          > ${changelog}
  DEPENDS debian_changelog.awk ${PROJECT_SOURCE_DIR}/CHANGELOG.md VERBATIM)
orvanta_packed(changelog)
install(FILES ${changelog}.gz DESTINATION share/doc/orvanta COMPONENT debian EXCLUDE_FROM_ALL)
# The package of the sound is documented by the other one, which it needs in the same version.
set(sound_documents ${CMAKE_CURRENT_BINARY_DIR}/orvanta-sound)
file(CREATE_LINK orvanta ${sound_documents} SYMBOLIC)
install(FILES ${sound_documents} DESTINATION share/doc COMPONENT debian_sound EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME orvanta)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME orvanta)
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION
    "lead a team through a SWOT analysis\n\
Each member brainstorms alone, guided by spoken questions, and collects\n\
strengths, weaknesses, opportunities and threats. The team leader brings the\n\
results together, weeds and ranks them, and drags onto each opportunity and\n\
each threat the strengths and weaknesses that bear on it. A report shows the\n\
outcome as a web page or as an RTF document.")
set(CPACK_DEBIAN_SOUND_PACKAGE_NAME orvanta-sound)
set(CPACK_DEBIAN_SOUND_DESCRIPTION
    "voice of Orvanta\n\
Lets Orvanta speak its questions. Without this package it is silent, and\n\
all else is the same.")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://${ORVANTA_WEB_HOST}/orvanta-overview/")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
# Whatever the rights are that new files get here.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_ARCHIVE_FILE_NAME orvanta-${PROJECT_VERSION})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS xdg-utils)  # opens the reports
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "fonts-dejavu-core, orvanta-sound, qt6-wayland")
set(CPACK_DEBIAN_SOUND_PACKAGE_DEPENDS "orvanta (= ${PROJECT_VERSION})")
# No linker looks for the module. CPack makes scripts that tell the linker of it, unless there are
# others of their names; files that are not there do.
set(CPACK_DEBIAN_SOUND_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_BINARY_DIR}/none/postinst
                                             ${CMAKE_CURRENT_BINARY_DIR}/none/postrm)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/package_kinds.cmake)
include(CPack)
