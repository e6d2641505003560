# Cross-compiles the Windows build with MinGW-w64 (posix thread model, for std::mutex).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(ZELTO_MINGW_PREFIX x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ZELTO_MINGW_PREFIX}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ZELTO_MINGW_PREFIX}-g++-posix)
set(CMAKE_RC_COMPILER ${ZELTO_MINGW_PREFIX}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${ZELTO_MINGW_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# No runtime DLLs beside the programs.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")

# Windows programs (tests included) run through Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine-run.sh)
