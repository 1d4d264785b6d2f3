# Programs for 64-bit Windows, made on Debian with its mingw-w64 and run there by wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(mingw x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${mingw}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw}-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/under_wine.sh)

# Two libraries are headers alone, so this system's serve Windows as well. They are seen through
# links, as the folder in which they lie holds this system's own headers too. All builds share them:
# another path would be another command for the compiler's cache.
cmake_path(SET header_libraries NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../build/header_libraries)
file(MAKE_DIRECTORY ${header_libraries}/include ${header_libraries}/share/cmake)
foreach(part include/boost include/nlohmann share/cmake/nlohmann_json)
  if(EXISTS /usr/${part} AND NOT EXISTS ${header_libraries}/${part})
    file(CREATE_LINK /usr/${part} ${header_libraries}/${part} SYMBOLIC)
  endif()
endforeach()

# The decoders of the voice, as scripts/windows.sh makes them; this system's own are no use.
cmake_path(SET decoders NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../build/windows/decoders)
set(ENV{PKG_CONFIG_LIBDIR} ${decoders}/lib/pkgconfig)

list(APPEND CMAKE_PREFIX_PATH ${header_libraries} ${ORVANTA_WINDOWS_QT})
set(CMAKE_FIND_ROOT_PATH /usr/${mingw} ${header_libraries} ${decoders} ${ORVANTA_WINDOWS_QT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
