# Builds for Windows (64 bits) on Debian, statically, with the libraries that packaging/windows/libraries
# has made.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# A file without the time and the folder it was built in.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")

set(libraries ${CMAKE_CURRENT_LIST_DIR}/../../build/windows/libraries)
get_filename_component(libraries ${libraries} ABSOLUTE)
set(CMAKE_FIND_ROOT_PATH ${libraries})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${libraries}/lib/pkgconfig)
set(ENV{PKG_CONFIG_PATH} "")
set(PKG_CONFIG_ARGN --static)
set(QT_HOST_PATH /usr CACHE PATH "Where Qt's own tools are")
file(GLOB host_packages /usr/lib/*/cmake/Qt6HostInfo)
get_filename_component(host_packages "${host_packages}" DIRECTORY)
set(QT_HOST_PATH_CMAKE_DIR ${host_packages} CACHE PATH "Where the packages of those are")

# What is built has to run too: the tests, and the program that scrambles the data files.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/run)
