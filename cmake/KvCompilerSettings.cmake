# Language level, warnings and linking rules of every target.

set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

add_compile_options(-Wall -Wextra -Wpedantic "$<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor;-Woverloaded-virtual>")
option(KV_WARNINGS_ARE_ERRORS "Stop at compiler warnings" OFF)
if(KV_WARNINGS_ARE_ERRORS)
    add_compile_options(-Werror)
endif()

# A unique symbol would pin its library in the process: nothing may stay loaded between calls.
add_compile_options("$<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>")

add_compile_definitions(
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_KEYWORDS
    QT_NO_FOREACH
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_URL_CAST_FROM_STRING
    # What later versions call outdated is what 5.15 and 6.4 have.
    QT_WARN_DEPRECATED_UP_TO=0x060400)

if(KV_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
elseif(NOT WIN32)
    add_link_options(LINKER:--no-undefined)
endif()
if(KV_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()

# What makes a fault in a program that loads these libraries, or in a file that they read, hard to use.
if(WIN32)
    add_link_options(LINKER:--nxcompat,--dynamicbase,--high-entropy-va)
else()
    include(CheckPIESupported)
    check_pie_supported()
    add_link_options(LINKER:-z,relro,-z,now,-z,noexecstack)
    add_compile_options(-fstack-protector-strong)
    include(CheckCXXCompilerFlag)
    # Those that not every compiler or processor has; clang takes all, and warns of what it does not use.
    set(CMAKE_REQUIRED_FLAGS -Werror)
    foreach(flag IN ITEMS -fstack-clash-protection -fcf-protection=full -mbranch-protection=standard)
        string(MAKE_C_IDENTIFIER "KV_HAS${flag}" has)
        check_cxx_compiler_flag(${flag} ${has})
        if(${has})
            add_compile_options(${flag})
        endif()
    endforeach()
    unset(CMAKE_REQUIRED_FLAGS)
    if(NOT KV_SANITIZE)
        # The C library's checks need the optimizer, and hide calls from the sanitizers. Some compilers
        # define it by themselves.
        add_compile_options("$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
    endif()
endif()
