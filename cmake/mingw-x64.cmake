# Cross-compiles QVXClient.dll for 64-bit Office with MinGW-w64 (the -posix
# thread model of Debian's packages).
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(QVX_MINGW_TRIPLET x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-common.cmake)
