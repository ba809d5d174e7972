# Includes follow the arrows of the house: entry -> dialog -> pages -> model -> public headers; the
# companions and the host program know the public headers alone, as a stranger's would.
#
#   cmake -D ROOT=PROJECT -D PART=tree -P layering.cmake         the project's own sources
#   cmake -D ROOT=PROJECT -D PART=self_test -P layering.cmake    that a breach would be found
cmake_minimum_required(VERSION 3.25)

# What each folder may include of the project, as regular expressions of the name between the quotes
# or brackets. A name without a folder is a neighbour, which must exist beside the file.
set(public "kv_config_gui_mvc/((settings_record|companions|companion_check|companion_library|config_gui|media_info|version)\\.h|settings_fields\\.def)")
set(may_include_include "${public}|[a-z_]+\\.h")
set(may_include_src_model "${public}|model/[A-Za-z]+\\.h")
set(may_include_src_pages "pages/[A-Za-z0-9]+\\.h|model/(ConfigState|KeyNames)\\.h")
set(may_include_src_dialog "${public}|(dialog|pages|model)/[A-Za-z0-9]+\\.h")
set(may_include_src_entry "${public}|(entry|dialog|pages|model)/[A-Za-z0-9]+\\.h")
set(may_include_companions "${public}")
set(may_include_host "${public}")
set(may_include_examples "${public}")
set(folders include src/model src/pages src/dialog src/entry companions host examples)

# Where the toolkit must not be: C headers, companions and examples have none, but for the one of a host that
# has it; the model has its core only.
set(without_toolkit include companions examples)
set(with_toolkit "/examples/qt-host/")
set(widget_headers "^Q(Widget|Dialog|Application|Frame|Label|[A-Z][a-z]+Box|[A-Za-z]*Layout|TabWidget|TextEdit|GuiApplication|Icon|Pixmap)$")

# check_file(FOLDER FILE CONTENT): appends what is wrong to `breaches`.
function(check_file folder file content)
    string(REPLACE "/" "_" rule "may_include_${folder}")
    cmake_path(GET file PARENT_PATH beside)
    # Brackets and semicolons would break CMake's lists.
    string(REGEX REPLACE "[][;]" " " content "${content}")
    string(REGEX MATCHALL "(^|\n)[ \t]*#[ \t]*include[ \t]*[<\"][^>\"\n]+[>\"]" lines "${content}")
    foreach(line IN LISTS lines)
        string(REGEX REPLACE ".*[<\"]([^>\"]+)[>\"]$" "\\1" name "${line}")
        string(REGEX MATCH "<" bracket "${line}")
        set(breach "")
        if(name MATCHES "^Q[A-Z]" AND folder IN_LIST without_toolkit AND NOT file MATCHES "${with_toolkit}")
            set(breach "toolkit")
        elseif(name MATCHES "${widget_headers}" AND folder STREQUAL "src/model")
            set(breach "widgets in the model")
        elseif(name MATCHES "^(\\.\\./|src/)" OR name MATCHES "/\\.\\./")
            set(breach "a path out of the folder")
        elseif(name MATCHES "^(kv_config_gui_mvc|model|pages|dialog|entry)/" OR
               (NOT bracket AND name MATCHES "/"))
            if(NOT name MATCHES "^(${${rule}})$")
                set(breach "another layer")
            elseif(name MATCHES "^kv_config_gui_mvc/" AND NOT bracket AND NOT folder STREQUAL "include")
                set(breach "a public header in quotes")
            endif()
        elseif(NOT bracket AND NOT name MATCHES "^ui_" AND NOT name MATCHES "\\.moc$" AND
               NOT EXISTS "${beside}/${name}" AND NOT EXISTS "${beside}/${name}.in" AND
               NOT name MATCHES "^(View([0-3]|@VIEW@)Page\\.h|english_tips\\.inc)$")
            set(breach "no neighbour of that name")
        endif()
        if(breach)
            list(APPEND breaches "${file}: ${name} (${breach})")
        endif()
    endforeach()
    set(breaches "${breaches}" PARENT_SCOPE)
endfunction()

set(breaches "")
if(PART STREQUAL "tree")
    set(seen 0)
    foreach(folder IN LISTS folders)
        file(GLOB_RECURSE files "${ROOT}/${folder}/*.h" "${ROOT}/${folder}/*.c"
            "${ROOT}/${folder}/*.cpp" "${ROOT}/${folder}/*.in")
        foreach(file IN LISTS files)
            file(READ "${file}" content)
            check_file("${folder}" "${file}" "${content}")
            math(EXPR seen "${seen} + 1")
        endforeach()
    endforeach()
    if(seen LESS 100)
        message(FATAL_ERROR "only ${seen} sources found below ${ROOT}")
    endif()
    foreach(breach IN LISTS breaches)
        message("${breach}")
    endforeach()
    if(breaches)
        message(FATAL_ERROR "includes against the arrows")
    endif()
elseif(PART STREQUAL "self_test")
    # Each row: folder, include, whether it is a breach.
    set(rows
        "src/model|<QWidget>|yes" "src/model|<QMap>|no" "src/model|\"pages/BasicPage.h\"|yes"
        "src/model|<kv_config_gui_mvc/settings_record.h>|no" "src/model|\"model/KeyNames.h\"|no"
        "src/pages|\"model/ConfigState.h\"|no" "src/pages|\"model/KeyNames.h\"|no"
        "src/pages|\"model/KeyTable.h\"|yes" "src/pages|\"dialog/MessageLog.h\"|yes"
        "src/pages|<kv_config_gui_mvc/settings_record.h>|yes" "src/pages|<QFrame>|no"
        "src/dialog|\"model/KeyTable.h\"|no" "src/dialog|\"pages/BasicPage.h\"|no"
        "src/dialog|\"entry/Bindings.h\"|yes" "src/dialog|\"../entry/Bindings.h\"|yes"
        "src/entry|\"dialog/Companions.h\"|no" "src/entry|\"pages/BasicPage.h\"|no"
        "src/entry|\"host/Library.h\"|yes"
        "companions|<kv_config_gui_mvc/companions.h>|no" "companions|<QString>|yes"
        "companions|\"model/KeyTable.h\"|yes" "companions|\"../../src/model/KeyTable.h\"|yes"
        "companions|\"kv_config_gui_mvc/companions.h\"|yes" "companions|<vector>|no"
        "companions|\"no_such_neighbour.h\"|yes"
        "host|<kv_config_gui_mvc/config_gui.h>|no" "host|\"dialog/Companions.h\"|yes"
        "host|<QProcess>|no" "host|<src/dialog/Companions.h>|yes"
        "include|<stdint.h>|no" "include|<QString>|yes" "include|\"model/KeyTable.h\"|yes"
        "examples|<kv_config_gui_mvc/config_gui.h>|no" "examples|<QString>|yes"
        "examples/qt-host|<QString>|no")
    foreach(row IN LISTS rows)
        string(REPLACE "|" ";" row "${row}")
        list(GET row 0 folder)
        list(GET row 1 name)
        list(GET row 2 expected)
        set(breaches "")
        check_file("${folder}" "${ROOT}/${folder}/Example.cpp" "// text\n#include ${name}\n")
        set(found no)
        if(breaches)
            set(found yes)
        endif()
        if(NOT found STREQUAL expected)
            message(SEND_ERROR "${folder} includes ${name}: a breach? ${found}, not ${expected}")
        endif()
    endforeach()
else()
    message(FATAL_ERROR "PART is tree or self_test")
endif()
