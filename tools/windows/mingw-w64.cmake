# Cross-building for 64-bit Windows with Debian's MinGW-w64, the variant with POSIX threads.
#
# The toolkit for Windows is where tools/windows/build-qt has put it; its tools that run while
# building (moc, uic, rcc, lrelease) are this system's own, of the same version.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Set by the preset when a project is configured; while the toolkit itself is built there is none.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KV_QT_MINGW)
if(KV_QT_MINGW)
    list(APPEND CMAKE_PREFIX_PATH "${KV_QT_MINGW}")
    # Comes with the host's tools only.
    set(Qt6LinguistTools_DIR "/usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake/Qt6LinguistTools"
        CACHE PATH "")
endif()
set(QT_HOST_PATH "/usr" CACHE PATH "")
set(QT_HOST_PATH_CMAKE_DIR "/usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake" CACHE PATH "")

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${KV_QT_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)

# Tests and generators that are programs of the target run in Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/run" CACHE FILEPATH "")
