# Cross-build for 32-bit Windows with MinGW-w64; tests run under the 32-bit Wine loader when
# wine32 is installed.
set(TOLVA_MINGW_TRIPLE i686-w64-mingw32)
set(TOLVA_WINE_LOADER /usr/lib/wine/wine)
set(TOLVA_WIDL_ARCH --win32)
# widl reads stdole2.tlb only for type names and GUIDs: the 64-bit copy serves both.
set(TOLVA_WINE_DLL_DIR /usr/lib/x86_64-linux-gnu/wine/x86_64-windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-common.cmake)
