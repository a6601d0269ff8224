# One library a layer. Each layer sees only its own folders and those of the
# layers it names: its include root (build/layers/<layer>) holds links to
# its folders alone, and a dependent gets it through the link to the layer.
# An include that runs up, or sideways into a layer not named, does not
# compile.
function(tamrel_layer name)
  cmake_parse_arguments(L "" "" "FOLDERS;EXCLUDE;PUBLIC;PRIVATE" ${ARGN})
  set(root ${CMAKE_BINARY_DIR}/layers/${name})
  set(sources)
  foreach(folder ${L_FOLDERS})
    get_filename_component(parent ${root}/${folder} DIRECTORY)
    file(MAKE_DIRECTORY ${parent})
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/${folder} ${root}/${folder} SYMBOLIC)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp)
    list(APPEND sources ${found})
  endforeach()
  foreach(excluded ${L_EXCLUDE})
    list(REMOVE_ITEM sources ${CMAKE_SOURCE_DIR}/${excluded})
  endforeach()
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${root})
  target_link_libraries(${name} PUBLIC ${L_PUBLIC} PRIVATE ${L_PRIVATE})
endfunction()
