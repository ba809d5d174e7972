# Run by CPack on the installed files, before they become packages.
foreach(row IN ITEMS "runtime|kv-config-gui-mvc" "development|kv-config-gui-mvc-dev" "documentation|kv-config-gui-mvc-doc")
    string(REPLACE "|" ";" row "${row}")
    list(GET row 0 component)
    list(GET row 1 package)
    set(folder "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}/usr/share/doc/${package}")
    file(WRITE "${folder}/changelog" "kv-config-gui-mvc (${CPACK_PACKAGE_VERSION}) stable; urgency=medium

  * See CHANGELOG.md in kv-config-gui-mvc-doc.

 -- ${CPACK_PACKAGE_CONTACT}  Sun, 22 Nov 2026 00:00:00 +0000
")
    execute_process(COMMAND gzip -9nf "${folder}/changelog" COMMAND_ERROR_IS_FATAL ANY)
    set(licence "${CMAKE_CURRENT_LIST_DIR}/../LICENSE")
    if(EXISTS "${licence}")
        configure_file("${licence}" "${folder}/copyright" COPYONLY)
    endif()
endforeach()
