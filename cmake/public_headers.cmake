# The public C++ API, chosen on purpose: the generator classes and the
# protocol class, their data objects and property tables, Host and the
# errors (core/host.h, core/error.h come with every class), and the C
# interface. What they include comes along, and nothing else: the JSON
# layer, the call protocol's internals, the checks and the file reader stay
# inside the library.
set(TAMREL_PUBLIC_ENTRIES
  capi/c_api.h
  core/host.h
  core/error.h
  core/objects_properties.h
  protocol/clsProtoEntry.h)
file(GLOB entries RELATIVE ${CMAKE_SOURCE_DIR} CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/reports/*/clsGen*.h ${CMAKE_SOURCE_DIR}/certificates/*/clsGen*.h
  ${CMAKE_SOURCE_DIR}/queries/*/clsGen*.h ${CMAKE_SOURCE_DIR}/xml/*/clsGen*.h
  ${CMAKE_SOURCE_DIR}/reports/*/*_properties.h ${CMAKE_SOURCE_DIR}/certificates/*/*_properties.h
  ${CMAKE_SOURCE_DIR}/queries/*/*_properties.h ${CMAKE_SOURCE_DIR}/xml/*/*_properties.h)
list(APPEND TAMREL_PUBLIC_ENTRIES ${entries})

# The entries and every header they include, transitively (project headers
# only: "folder/file.h"); the generated core/version.h is installed apart.
function(tamrel_header_closure out)
  set(todo ${ARGN})
  set(seen)
  while(todo)
    list(POP_FRONT todo header)
    if(header IN_LIST seen OR NOT EXISTS ${CMAKE_SOURCE_DIR}/${header})
      continue()
    endif()
    list(APPEND seen ${header})
    file(STRINGS ${CMAKE_SOURCE_DIR}/${header} lines REGEX "^#include \"[^\"]+\"")
    foreach(line ${lines})
      string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" included "${line}")
      list(APPEND todo ${included})
    endforeach()
  endwhile()
  list(SORT seen)
  set(${out} ${seen} PARENT_SCOPE)
endfunction()

tamrel_header_closure(TAMREL_PUBLIC_HEADERS ${TAMREL_PUBLIC_ENTRIES})
