# Runs tolva_reference under Wine. With GENERATED it writes the document there and fails when it
# differs from the checked-in DOCUMENT; without, it rewrites DOCUMENT.
#
#   cmake -DWINE=<emulator command, ;-separated> -DTOOL=<tolva_reference.exe> -DDLL=<TolvaKit.dll>
#         -DDOCUMENT=<docs/reference.md> [-DGENERATED=<file>] -P reference_document.cmake

if(GENERATED)
    set(output ${GENERATED})
else()
    set(output ${DOCUMENT})
endif()
foreach(path DLL output)
    string(REPLACE "/" "\\" windows_${path} "Z:${${path}}")
endforeach()
# Wine's output goes to a file beside the tool: a pipe would stay open as long as the prefix's
# background processes that a program started.
get_filename_component(folder ${TOOL} DIRECTORY)
execute_process(COMMAND ${WINE} ${TOOL} ${windows_DLL} ${windows_output} RESULT_VARIABLE status
    OUTPUT_FILE ${folder}/tolva_reference.log ERROR_FILE ${folder}/tolva_reference.log)
if(NOT status EQUAL 0)
    file(READ ${folder}/tolva_reference.log log)
    message(FATAL_ERROR "tolva_reference failed (${status}): ${log}")
endif()
if(GENERATED)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${DOCUMENT} ${GENERATED} RESULT_VARIABLE different)
    if(different)
        message(FATAL_ERROR "docs/reference.md is not what the type library and the controls say now "
                            "(the build wrote ${GENERATED}). Regenerate it with:\n    scripts/update-reference.sh")
    endif()
endif()
