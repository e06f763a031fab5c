# Installing fedeck: the archive libfedeck.a, the shared libfedeck.so, the
# fedeck program, the public headers under include/fedeck/<folder>/, a CMake
# package (find_package(fedeck CONFIG) gives fedeck::fedeck and
# fedeck::shared) and fedeck.pc for pkg-config.
#
#   cmake --install <build> --prefix <prefix>     (or: make install PREFIX=...)

include_guard(GLOBAL)
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# The headers a caller needs: the input file and its stages, the visitors
# offered to callers, the model maps, the message sink and the flat C entry.
# What they include is installed with them (fedeck_header_closure); nothing
# else is, so that the rest of the tree stays free to change.
set(FEDECK_PUBLIC_HEADER_ROOTS
  pipeline/inp_InputFile.h
  pipeline/inp_InputFileOptions.h
  pipeline/inp_Stage.h
  pipeline/inp_Module.h
  pipeline/inp_Visitor.h
  pipeline/inp_Utf8ValidityVisitor.h
  tables/inp_ContactCheck.h
  mesh/inp_NodeVisitor.h
  mesh/inp_ElementVisitor.h
  mesh/inp_NodeGenerationVisitor.h
  mesh/inp_SurfaceVisitor.h
  assembly/inp_AssyLevelElemVisitor.h
  assembly/inp_CollectRefNodesVisitor.h
  assembly/inp_CollectTransformedNodesVisitor.h
  mesh/inp_CoordMap.h
  mesh/inp_MapInt2Element.h
  mesh/inp_Utils.h
  support/inpM_IdMap.h
  support/inpM_InstanceMap.h
  support/inpM_PartMap.h
  support/inpM_SetMap.h
  support/inpM_SurfaceMap.h
  support/wip_WIP.h
  binding/inp_CAPI.h
  binding/inp_CAPI_Model.h)

# Sets `out_var` to `roots` and every header of the tree they include,
# directly or not, as paths relative to `source_dir`. Only includes of the
# form "folder/header.h" naming a file of the tree count; system headers and
# quoted names without a folder are not part of the closure.
function(fedeck_header_closure out_var source_dir)
  set(pending ${ARGN})
  set(seen)
  while(pending)
    list(POP_FRONT pending header)
    if(header IN_LIST seen)
      continue()
    endif()
    if(NOT EXISTS "${source_dir}/${header}")
      message(FATAL_ERROR "public header ${header} does not exist")
    endif()
    list(APPEND seen ${header})
    file(STRINGS "${source_dir}/${header}" lines REGEX "^[ \t]*#[ \t]*include[ \t]*\"[^\"/]+/[^\"]+\"")
    foreach(line IN LISTS lines)
      if(line MATCHES "\"([^\"/]+/[^\"]+)\"" AND EXISTS "${source_dir}/${CMAKE_MATCH_1}")
        list(APPEND pending ${CMAKE_MATCH_1})
      endif()
    endforeach()
  endwhile()
  list(SORT seen)
  set(${out_var} ${seen} PARENT_SCOPE)
endfunction()

fedeck_header_closure(fedeck_public_headers ${CMAKE_CURRENT_SOURCE_DIR} ${FEDECK_PUBLIC_HEADER_ROOTS})
set(FEDECK_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/fedeck)
foreach(header IN LISTS fedeck_public_headers)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES ${header} DESTINATION ${FEDECK_INSTALL_INCLUDEDIR}/${folder})
endforeach()
install(FILES ${FEDECK_GENERATED_DIR}/fedeck_Version.h DESTINATION ${FEDECK_INSTALL_INCLUDEDIR})

set_target_properties(fedeck_shared PROPERTIES EXPORT_NAME shared
  VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
install(TARGETS fedeck fedeck_shared EXPORT fedeckTargets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS fedeck_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

set(FEDECK_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/fedeck)
install(EXPORT fedeckTargets NAMESPACE fedeck:: DESTINATION ${FEDECK_CMAKE_DIR})
configure_package_config_file(cmake/fedeckConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/fedeckConfig.cmake INSTALL_DESTINATION ${FEDECK_CMAKE_DIR})
# Before 1.0 a minor version may change the interface: only the same
# major.minor answers a request.
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/fedeckConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/fedeckConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/fedeckConfigVersion.cmake
        DESTINATION ${FEDECK_CMAKE_DIR})

# pkg-config: the archive, by its path, since -lfedeck would find the shared
# library, which exports the flat C entry only. The prefix is found from the
# file's own place, so that `cmake --install --prefix` anywhere gives a
# working file.
file(RELATIVE_PATH FEDECK_PC_TO_PREFIX /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(cmake/fedeck.pc.in ${CMAKE_CURRENT_BINARY_DIR}/fedeck.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/fedeck.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
