# kv_library_settings(TARGET EXPORTS NAME... [SYMBOL_VERSION NAME])
#
# What the module and the companion libraries have in common: a file name without "lib", a place in
# the folder of what runs, a run path of their own directory, and nothing exported but the names given.
# SYMBOL_VERSION: on Linux, what hosts that link the library record of it.
function(kv_library_settings target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "SYMBOL_VERSION" "EXPORTS")
    set_target_properties(${target} PROPERTIES
        PREFIX ""
        LIBRARY_OUTPUT_DIRECTORY "${KV_BIN_DIR}"
        RUNTIME_OUTPUT_DIRECTORY "${KV_BIN_DIR}"
        # CMake ends a run path of the build tree's own with an empty one: the current folder.
        BUILD_WITH_INSTALL_RPATH ON
        INSTALL_RPATH_USE_LINK_PATH ON
        INSTALL_RPATH "$ORIGIN")
    if(WIN32)
        set(exports "${CMAKE_CURRENT_BINARY_DIR}/${target}.def")
        list(JOIN arg_EXPORTS "\n    " names)
        file(CONFIGURE OUTPUT "${exports}" CONTENT "EXPORTS\n    ${names}\n" @ONLY)
        target_sources(${target} PRIVATE "${exports}")
    else()
        # A version script, since template instances of weak linkage leak through hidden visibility.
        set(exports "${CMAKE_CURRENT_BINARY_DIR}/${target}.map")
        list(JOIN arg_EXPORTS ";\n        " names)
        file(CONFIGURE OUTPUT "${exports}"
            CONTENT "${arg_SYMBOL_VERSION}{\n    global:\n        ${names};\n    local:\n        *;\n};\n" @ONLY)
        target_link_options(${target} PRIVATE "LINKER:--version-script=${exports}")
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${exports}")
        if(arg_SYMBOL_VERSION)
            # Otherwise the linker exports the version's name, as a symbol without use.
            target_link_options(${target} PRIVATE "LINKER:--defsym=${arg_SYMBOL_VERSION}=0")
        endif()
    endif()
endfunction()

# kv_add_companion(NAME EXPORTS NAME... SOURCES FILE...)
#
# A companion library: built on the public headers alone, and called by name only. The global property
# KV_COMPANIONS has the names of all that are built.
function(kv_add_companion target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "EXPORTS;SOURCES")
    add_library(${target} MODULE ${arg_SOURCES})
    target_link_libraries(${target} PRIVATE kv_headers)
    target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    kv_library_settings(${target} EXPORTS ${arg_EXPORTS})
    kv_version_resource(${target} "Companion library of the MVC encoder settings: ${target}")
    install(TARGETS ${target} LIBRARY DESTINATION ${KV_INSTALL_MODULEDIR})
    set_property(GLOBAL APPEND PROPERTY KV_COMPANIONS ${target})
endfunction()
