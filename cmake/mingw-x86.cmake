# Cross-compiles QVXClient.dll for 32-bit Office with MinGW-w64 (the -posix
# thread model of Debian's packages).
set(CMAKE_SYSTEM_PROCESSOR i686)
set(QVX_MINGW_TRIPLET i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-common.cmake)
