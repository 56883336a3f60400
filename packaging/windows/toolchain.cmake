# Programs for 64-bit Windows from Debian's mingw-w64. TOLVO_WINDOWS_PREFIX is where dependencies.sh keeps what it built.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)

if(NOT TOLVO_WINDOWS_PREFIX)
    set(TOLVO_WINDOWS_PREFIX $ENV{TOLVO_WINDOWS_PREFIX})
endif()
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TOLVO_WINDOWS_PREFIX)

# Libraries and headers are those for Windows; programs that run during the build are this system's.
set(CMAKE_FIND_ROOT_PATH ${TOLVO_WINDOWS_PREFIX} /usr/${triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${TOLVO_WINDOWS_PREFIX}/lib/pkgconfig)
set(ENV{PKG_CONFIG_PATH} "")

# The toolkit's code generators are those of this system's own toolkit, of the same version.
set(QT_HOST_PATH /usr CACHE PATH "")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH "")
