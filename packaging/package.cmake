# The Debian package, and the tarball of the portable folder; scripts/package.sh makes both.
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

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME orvanta)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "lead a team through a SWOT analysis")
set(CPACK_PACKAGE_DESCRIPTION
    "Each member brainstorms alone, guided by spoken questions, and collects\n\
strengths, weaknesses, opportunities and threats. The team leader brings the\n\
results together, weeds and ranks them, and drags onto each opportunity and\n\
each threat the strengths and weaknesses that bear on it. A report shows the\n\
outcome as a web page or as an RTF document.")
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
set(CPACK_DEBIAN_PACKAGE_DEPENDS xdg-utils)  # opens the reports
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, qt6-wayland")
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/package_kinds.cmake)
include(CPack)
