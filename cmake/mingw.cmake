# Toolchain of the preset mingw: g++ for 64-bit Windows with the C++ threads of POSIX, the libraries that
# scripts/windows-bibliotheken.sh made, and nothing of the machine's own.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(Wirt x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${Wirt}-gcc-posix)
set(CMAKE_CXX_COMPILER ${Wirt}-g++-posix)
set(CMAKE_RC_COMPILER ${Wirt}-windres)

set(Bibliotheken ${CMAKE_CURRENT_LIST_DIR}/../build/mingw-bibliotheken)
set(CMAKE_FIND_ROOT_PATH ${Bibliotheken} /usr/${Wirt})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${Bibliotheken}/lib/pkgconfig:/usr/${Wirt}/lib/pkgconfig)
set(PKG_CONFIG_ARGN --static)

# Programs that start without any further DLL.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine.sh)
