# Windows x86-64 with Debian's MinGW-w64 cross compiler (g++-mingw-w64-x86-64). Everything
# is linked statically, so the plugin DLL and the test programs need no runtime DLL
# beside them. Programs built here run under Debian's Wine (wine64), with a Wine prefix
# of their own in the build tree and Wine's own diagnostics silenced.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(CROSS_TRIPLE x86_64-w64-mingw32)
set(CMAKE_CXX_COMPILER ${CROSS_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${CROSS_TRIPLE}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${CROSS_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)
set(CMAKE_MODULE_LINKER_FLAGS_INIT -static)
set(WINE_DIR /usr/lib/wine)
set(WINE_PREFIX ${CMAKE_BINARY_DIR}/wine)
set(CMAKE_CROSSCOMPILING_EMULATOR env WINEDEBUG=-all WINEPREFIX=${WINE_PREFIX} ${WINE_DIR}/wine64)
# Run once before the tests, which start programs under Wine side by side.
set(CROSS_TEST_PREPARE "sh \"${CMAKE_CURRENT_LIST_DIR}/wine-prefix.sh\" \"${WINE_PREFIX}\" \"${WINE_DIR}\"")
