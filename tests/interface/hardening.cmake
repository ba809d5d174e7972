# Holds what the compiler and the linker have made of BINARY, a library or a program, against what keeps a
# fault in it from being used. READELF and OBJDUMP read it; SYSTEM and PROCESSOR are what it was built for.
# FUNCTION is one that it defines. GUARDS are those that it calls: of the stack, and of the C library.

function(hold text name pattern)
    if(NOT text MATCHES "${pattern}")
        message(SEND_ERROR "${BINARY}: ${name}: nothing matches '${pattern}'")
    endif()
endfunction()

function(read result)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

if(SYSTEM STREQUAL "Windows")
    read(headers "${OBJDUMP}" -p "${BINARY}")
    hold("${headers}" "addresses of 64 bits are random" "HIGH_ENTROPY_VA")
    hold("${headers}" "it may be loaded anywhere" "DYNAMIC_BASE")
    hold("${headers}" "data are not executed" "NX_COMPAT")
    return()
endif()

read(headers "${READELF}" -hldW "${BINARY}")
hold("${headers}" "it may be loaded anywhere" "Type: +DYN ")
if(headers MATCHES "\\[Requesting program interpreter")
    hold("${headers}" "the loader knows that it may" "FLAGS_1[^\n]* PIE")
endif()
hold("${headers}" "addresses are write-protected" "GNU_RELRO")
hold("${headers}" "all of them, before anything runs" "BIND_NOW")
hold("${headers}" "the stack is not executed" "GNU_STACK[^\n]* RW ")
read(symbols "${READELF}" -W --dyn-syms "${BINARY}")
foreach(guard IN LISTS GUARDS)
    hold("${symbols}" "guarded" " ${guard}@")
endforeach()
if(PROCESSOR STREQUAL "x86_64")
    read(code "${OBJDUMP}" --disassemble=${FUNCTION} "${BINARY}")
    hold("${code}" "calls may only go to where functions begin" "<${FUNCTION}>:\n[^\n]*endbr64")
endif()
