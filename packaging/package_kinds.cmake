# What one kind of package holds and the other does not.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_DEB_COMPONENT_INSTALL ON)
  set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
  set(CPACK_COMPONENTS_ALL Unspecified system_wide debian sound debian_sound)
  foreach(component UNSPECIFIED SYSTEM_WIDE DEBIAN)
    set(CPACK_COMPONENT_${component}_GROUP program)
  endforeach()
  foreach(component SOUND DEBIAN_SOUND)
    set(CPACK_COMPONENT_${component}_GROUP sound)
  endforeach()
else()
  set(CPACK_PACKAGE_FILE_NAME ${CPACK_ARCHIVE_FILE_NAME})  # the name of its topmost folder, too
endif()
