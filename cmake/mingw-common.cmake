# Shared part of the MinGW-w64 toolchain files. The including file sets TOLVA_MINGW_TRIPLE and
# TOLVA_WINE_LOADER before including this one.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${TOLVA_MINGW_TRIPLE}-gcc)
set(CMAKE_CXX_COMPILER ${TOLVA_MINGW_TRIPLE}-g++)
set(CMAKE_RC_COMPILER ${TOLVA_MINGW_TRIPLE}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${TOLVA_MINGW_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# -O2 rather than CMake's -O3: the usual optimisation for Windows release builds, and quicker to
# compile on the project's two-core machines.
set(CMAKE_C_FLAGS_RELEASE "-O2 -DNDEBUG" CACHE STRING "Flags of release builds")
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG" CACHE STRING "Flags of release builds")

# Everything links statically so that the DLL and the test programs import system DLLs only.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")

# The IDL compiler and the Wine headers it imports.
set(TOLVA_WIDL x86_64-w64-mingw32-widl CACHE FILEPATH "widl of the MinGW tools")
set(TOLVA_WIDL_INCLUDE /usr/include/wine/wine/windows CACHE PATH "Wine's IDL files (oaidl.idl, ocidl.idl)")

# ctest runs the Windows programs through Wine in a prefix of the build directory;
# scripts/wine-tests.sh creates it fresh and keeps one wineserver alive for the whole run.
set(TOLVA_WINEPREFIX "${CMAKE_BINARY_DIR}/wineprefix" CACHE PATH "Wine prefix the tests run in")
set(CMAKE_CROSSCOMPILING_EMULATOR
    /usr/bin/env "WINEPREFIX=${TOLVA_WINEPREFIX}" WINEDEBUG=-all "WINEDLLOVERRIDES=mscoree,mshtml=d"
    ${TOLVA_WINE_LOADER})
