# Holds the export tables of the Windows libraries LIBRARIES in BIN_DIR, read by OBJDUMP, against what
# their callers look up.
set(kv_config_gui_mvc showMVCEncoderPages)
set(kv_mvcenc mvcOutVideoChkSettings mvcOutVideoDefaults)
set(kv_mvc_settings_io MVCConfigGetAPIExt)
set(kv_mvc_settings_window kvLeaveDialogs kvMakeApplication)
set(mvc_gui_texts localizeConvertStr localizeSetLanguage)

foreach(library IN LISTS LIBRARIES)
    execute_process(
        COMMAND "${OBJDUMP}" -p "${BIN_DIR}/${library}.dll"
        OUTPUT_VARIABLE headers
        COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE ".*\\[Ordinal/Name Pointer\\] Table" "" table "${headers}")
    string(REGEX REPLACE "\n\n.*" "" table "${table}")
    string(REGEX MATCHALL "\\[ *[0-9]+\\] [^\n]+" rows "${table}")
    list(TRANSFORM rows REPLACE "\\[ *[0-9]+\\] " "")
    list(SORT rows)
    if(NOT rows STREQUAL "${${library}}")
        message(FATAL_ERROR "${library}.dll exports '${rows}' instead of '${${library}}'")
    endif()
endforeach()
