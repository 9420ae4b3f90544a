# What both MinGW-w64 toolchains share; the including file sets
# CMAKE_SYSTEM_PROCESSOR and QVX_MINGW_TRIPLET first. The runtime is linked
# statically, so the DLL and the test programs need only system DLLs.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${QVX_MINGW_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${QVX_MINGW_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${QVX_MINGW_TRIPLET}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${QVX_MINGW_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# -O2 rather than -O3: the add-in is user-interface code, the DLL stays
# smaller, and GCC 12's -O3 inlining raises false -Wrestrict warnings on
# ordinary string concatenation.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG" CACHE STRING "Release flags of the MinGW-w64 build")

set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")

