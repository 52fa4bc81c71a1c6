# Cross-build for 64-bit Windows with MinGW-w64; tests run under the 64-bit Wine loader.
set(TOLVA_MINGW_TRIPLE x86_64-w64-mingw32)
set(TOLVA_WINE_LOADER /usr/lib/wine/wine64)
set(TOLVA_WIDL_ARCH --win64)
set(TOLVA_WINE_DLL_DIR /usr/lib/x86_64-linux-gnu/wine/x86_64-windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-common.cmake)
