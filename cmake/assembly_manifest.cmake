# Writes the side-by-side assembly manifest of TolvaKit.dll from its type library source: every
# coclass of TolvaKit.idl becomes a COM class of the assembly with its ProgIDs, so does every
# property page (by class id only), every dispinterface is marshalled by the standard dispatch
# marshaller, and the type library is declared, so that a client whose application manifest
# depends on the assembly "TolvaKit" creates the controls and their pages without any
# registration.
#
#   cmake -DIDL=<TolvaKit.idl> -DOUTPUT=<TolvaKit.manifest> -DARCHITECTURE=<amd64|x86>
#         -DVERSION=<a.b.c.d> -P assembly_manifest.cmake

include(${CMAKE_CURRENT_LIST_DIR}/idl_declarations.cmake)

idl_declarations(${IDL} library libraries)
idl_declarations(${IDL} coclass classes)
idl_declarations(${IDL} dispinterface interfaces)
list(LENGTH libraries library_count)
if(NOT library_count EQUAL 1 OR NOT classes)
    message(FATAL_ERROR "${IDL}: expected one library and its coclasses")
endif()
string(REGEX REPLACE ".*=" "" library_id "${libraries}")

# The status bits the DLL registers under MiscStatus: those of every control, and a class's own
# (its ControlBehaviour; the DLL suite checks that the two agree).
set(misc_status "recomposeonresize,cantlinkinside,insideout,activatewhenvisible,setclientsitefirst")
set(misc_status_TolvaCommand "actslikebutton")
set(misc_status_TolvaLabel "nouiactivate")
# The property pages the DLL serves (platform/win32/pages/page_classes.cpp), which designers
# create by class id; the DLL suite creates each of them through this manifest.
set(property_pages
    "ppgCommand={F05DB81C-800B-47DB-BE4C-445EB640618D}"
    "ppgLabel={488C25FB-0A86-463F-B28D-DB53BDE7061E}"
    "ppgInput={EC075120-D569-4450-8E52-0FDAEF6D5999}"
    "ppgScroll={A3A9B5E1-EA3A-441F-9054-945454114EF1}"
    "ppgTabs={1951A08C-893D-41AE-A129-2EDEAAE534BE}"
    "ppgColumns={F37D9AD1-E524-4417-8D6A-2830B2DBC185}"
    "ppgListGeneral={BFA96013-3FC0-4A7F-A7EE-F0DBFE7FA865}")
set(dispatch_marshaller "{00020420-0000-0000-C000-000000000046}")

set(xml "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n")
string(APPEND xml "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n")
string(APPEND xml "    <assemblyIdentity type=\"win32\" name=\"TolvaKit\" version=\"${VERSION}\""
                  " processorArchitecture=\"${ARCHITECTURE}\"/>\n")
string(APPEND xml "    <file name=\"TolvaKit.dll\">\n")
string(APPEND xml "        <typelib tlbid=\"${library_id}\" version=\"1.0\" helpdir=\"\"/>\n")
foreach(class ${classes})
    string(REGEX REPLACE "=.*" "" name "${class}")
    string(REGEX REPLACE ".*=" "" clsid "${class}")
    set(status ${misc_status})
    if(misc_status_${name})
        string(APPEND status ",${misc_status_${name}}")
    endif()
    string(APPEND xml "        <comClass clsid=\"${clsid}\" progid=\"TolvaKit.${name}\" threadingModel=\"Apartment\""
                      " tlbid=\"${library_id}\" description=\"${name}\" miscStatus=\"\""
                      " miscStatusContent=\"${status}\">\n")
    string(APPEND xml "            <progid>TolvaKit.${name}.1</progid>\n")
    string(APPEND xml "        </comClass>\n")
endforeach()
foreach(page ${property_pages})
    string(REGEX REPLACE "=.*" "" name "${page}")
    string(REGEX REPLACE ".*=" "" clsid "${page}")
    string(APPEND xml "        <comClass clsid=\"${clsid}\" threadingModel=\"Apartment\" description=\"${name}\"/>\n")
endforeach()
string(APPEND xml "    </file>\n")
foreach(interface ${interfaces})
    string(REGEX REPLACE "=.*" "" name "${interface}")
    string(REGEX REPLACE ".*=" "" iid "${interface}")
    string(APPEND xml "    <comInterfaceExternalProxyStub name=\"${name}\" iid=\"${iid}\""
                      " proxyStubClsid32=\"${dispatch_marshaller}\" tlbid=\"${library_id}\"/>\n")
endforeach()
string(APPEND xml "</assembly>\n")
file(CONFIGURE OUTPUT ${OUTPUT} CONTENT "${xml}" @ONLY)
