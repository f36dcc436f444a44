# Builds with a cross compiler of Debian for the machine TARGET_TRIPLE, against the libraries below TARGET_ROOT. What was
# built is run by the command TARGET_RUN, a list. `scripts/test --arch` sets all three.
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TARGET_TRIPLE TARGET_ROOT TARGET_RUN)

set(CMAKE_SYSTEM_NAME Linux)
string(REGEX MATCH "^[^-]+" CMAKE_SYSTEM_PROCESSOR ${TARGET_TRIPLE})
set(CMAKE_CXX_COMPILER ${TARGET_TRIPLE}-g++)
# On Arm the compiler would remark on every call that g++ 6 made otherwise.
set(CMAKE_CXX_FLAGS_INIT -Wno-psabi)
set(CMAKE_CROSSCOMPILING_EMULATOR ${TARGET_RUN})

# Libraries for 32-bit x86 are in a folder of the oldest processor's name.
string(REPLACE i686 i386 CMAKE_LIBRARY_ARCHITECTURE ${TARGET_TRIPLE})
set(CMAKE_FIND_ROOT_PATH ${TARGET_ROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
