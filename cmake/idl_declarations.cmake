# idl_declarations(<file.idl> <keyword> <out>): the "[ uuid(...), ... ] <keyword> <Name>"
# declarations of an IDL file (keyword: library, coclass, dispinterface) in order, as a list of
# "Name={GUID}" with the GUID in capitals.
function(idl_declarations idl keyword out)
    file(READ ${idl} text)
    # Comments could hold words that look like declarations.
    string(REGEX REPLACE "//[^\n]*" "" text "${text}")
    # The end of an attribute list becomes a character the expression below can exclude.
    string(REPLACE "]" "`" text "${text}")
    string(REGEX MATCHALL "uuid\\(([0-9A-Fa-f-]+)\\)[^`]*`[ \t\r\n]*${keyword}[ \t\r\n]+[A-Za-z_0-9]+" found
        "${text}")
    set(result "")
    foreach(declaration ${found})
        string(REGEX REPLACE "^uuid\\(([0-9A-Fa-f-]+)\\).*[ \t\r\n]([A-Za-z_0-9]+)$" "\\2" name "${declaration}")
        string(REGEX REPLACE "^uuid\\(([0-9A-Fa-f-]+)\\).*" "\\1" guid "${declaration}")
        string(TOUPPER "${guid}" guid)
        list(APPEND result "${name}={${guid}}")
    endforeach()
    set(${out} "${result}" PARENT_SCOPE)
endfunction()
