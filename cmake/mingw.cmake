# Cross-compiles the Windows component with Debian's mingw-w64 compilers (the
# -posix variants: their C++ runtime has std::mutex and std::thread).
# -DTAMREL_WIN_ARCH=x86_64 (default) or i686.
if(NOT TAMREL_WIN_ARCH)
  set(TAMREL_WIN_ARCH x86_64)
endif()
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${TAMREL_WIN_ARCH})
set(CMAKE_C_COMPILER ${TAMREL_WIN_ARCH}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${TAMREL_WIN_ARCH}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${TAMREL_WIN_ARCH}-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${TAMREL_WIN_ARCH}-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
