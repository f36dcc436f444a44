# Toolchain file for Debian's cross compilers: builds for TARGET_TRIPLE with the libraries below TARGET_ROOT. TARGET_RUN
# is the command, a list, that runs the programs built. `scripts/test --arch` sets all three.
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TARGET_TRIPLE TARGET_ROOT TARGET_RUN)

set(CMAKE_SYSTEM_NAME Linux)
string(REGEX MATCH "^[^-]+" CMAKE_SYSTEM_PROCESSOR ${TARGET_TRIPLE})
set(CMAKE_CXX_COMPILER ${TARGET_TRIPLE}-g++)
# On Arm, no notes about the change of the calling convention since g++ 6.
set(CMAKE_CXX_FLAGS_INIT -Wno-psabi)
set(CMAKE_CROSSCOMPILING_EMULATOR ${TARGET_RUN})

# For 32-bit x86, the library folder has the name i386 instead of i686.
string(REPLACE i686 i386 CMAKE_LIBRARY_ARCHITECTURE ${TARGET_TRIPLE})
set(CMAKE_FIND_ROOT_PATH ${TARGET_ROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
