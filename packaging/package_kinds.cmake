# What one kind of package holds and the other does not.
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build_folder)
if(CPACK_GENERATOR STREQUAL "DEB")
  foreach(component system_wide debian)
    list(APPEND CPACK_INSTALL_CMAKE_PROJECTS ${build_folder} orvanta ${component} /)
  endforeach()
else()
  set(CPACK_PACKAGE_FILE_NAME ${CPACK_ARCHIVE_FILE_NAME})  # the name of its topmost folder, too
endif()
