# Cross-compiles QVXClient.dll for 32-bit Office with MinGW-w64 (the -posix
# thread model of Debian's packages). The runtime is linked statically, so the
# DLL and the test programs need only system DLLs.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)

set(QVX_MINGW_TRIPLET i686-w64-mingw32)
set(CMAKE_C_COMPILER ${QVX_MINGW_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${QVX_MINGW_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${QVX_MINGW_TRIPLET}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${QVX_MINGW_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")

