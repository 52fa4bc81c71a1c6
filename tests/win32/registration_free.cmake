# Registration-free use: TolvaHost.exe with the example application manifest creates every
# control class of TolvaKit.idl from TolvaKit.dll in a Wine prefix where the DLL was never
# registered; without the manifest it cannot. scripts/wine-tests.sh runs this test before it
# registers the DLL.
#
#   cmake -DWINE=<emulator command, ;-separated> -DBIN=<folder of TolvaHost.exe and TolvaKit.dll>
#         -DMANIFEST=<application manifest> -DIDL=<TolvaKit.idl> -DWORK=<scratch folder>
#         -P registration_free.cmake

include(${CMAKE_CURRENT_LIST_DIR}/../../cmake/idl_declarations.cmake)
idl_declarations(${IDL} coclass classes)

function(windows_path path out)
    string(REPLACE "/" "\\" path "${path}")
    set(${out} "Z:${path}" PARENT_SCOPE)
endfunction()

# Wine's output goes to files: a pipe would stay open as long as the prefix's background processes
# that a program started.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
set(output OUTPUT_FILE ${WORK}/output.txt ERROR_FILE ${WORK}/errors.txt)

foreach(class ${classes})
    string(REGEX REPLACE "=.*" "" name "${class}")
    execute_process(COMMAND ${WINE} reg query "HKCR\\TolvaKit.${name}" RESULT_VARIABLE status ${output})
    if(status EQUAL 0)
        message(FATAL_ERROR "TolvaKit.${name} is registered in this prefix: the test needs one where TolvaKit.dll "
                            "never was (scripts/wine-tests.sh runs it before registering)")
    endif()
endforeach()

# A folder of its own: the program, the DLL and the form with one control of every class.
file(COPY ${BIN}/TolvaHost.exe ${BIN}/TolvaKit.dll DESTINATION ${WORK})
set(form "VERSION 5.00\nBegin VB.Form frmRegistrationFree\n   ClientWidth = 6000\n   ClientHeight = 4000\n")
set(top 120)
foreach(class ${classes})
    string(REGEX REPLACE "=.*" "" name "${class}")
    string(APPEND form "   Begin TolvaKit.${name} ctl${name}\n      Left = 120\n      Top = ${top}\n"
                       "      Width = 2400\n      Height = 450\n   End\n")
    math(EXPR top "${top} + 600")
endforeach()
string(APPEND form "End\n")
file(WRITE ${WORK}/form.frm "${form}")
windows_path(${WORK}/TolvaHost.exe host)
windows_path(${WORK}/form.frm input)
windows_path(${WORK}/saved.frm saved)

# Without the manifest nothing says where the classes are.
execute_process(COMMAND ${WINE} ${host} ${input} /close RESULT_VARIABLE status ${output})
if(status EQUAL 0)
    message(FATAL_ERROR "TolvaHost created the controls without a manifest: the classes are registered somewhere")
endif()

configure_file(${MANIFEST} ${WORK}/TolvaHost.exe.manifest COPYONLY)
execute_process(COMMAND ${WINE} ${host} ${input} /save ${saved} /close RESULT_VARIABLE status ${output})
if(NOT status EQUAL 0)
    file(READ ${WORK}/errors.txt errors)
    message(FATAL_ERROR "TolvaHost with the manifest failed (${status}):\n${errors}")
endif()
file(READ ${WORK}/saved.frm saved_form)
foreach(class ${classes})
    string(REGEX REPLACE "=.*" "" name "${class}")
    if(NOT saved_form MATCHES "Begin TolvaKit.${name} ctl${name}")
        message(FATAL_ERROR "TolvaKit.${name} is missing from the saved form:\n${saved_form}")
    endif()
endforeach()
list(LENGTH classes count)
message(STATUS "${count} control classes created without registration")
