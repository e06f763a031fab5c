# The installed package, as a project that takes fedeck in sees it. Run by
# CTest as a script:
#
#   cmake -DBUILD_DIR=<build> -DSOURCE_DIR=<source> -DWORK_DIR=<scratch>
#         -DVERSION=<project version> -DCXX=<compiler> -DCC=<compiler>
#         -P InstalledPackage.cmake
#
# It installs the build into a scratch prefix, then:
#  - builds tests/packaging/consumer with find_package(fedeck CONFIG), which
#    compiles every installed header alone, reads the example deck through
#    fedeck::fedeck and through fedeck::shared from C;
#  - compiles the same C++ reader with the flags of pkg-config;
#  - asks find_package for version 99, which must fail with CMake's message;
#  - runs the installed fedeck --version, and compares the version of the
#    Python package with the project's.
# Any failure stops the script with a message (and CTest reports the test
# as failed).

function(run_checked)
  cmake_parse_arguments(arg "" "OUTPUT_VARIABLE;WORKING_DIRECTORY" "COMMAND" ${ARGN})
  if(NOT arg_WORKING_DIRECTORY)
    set(arg_WORKING_DIRECTORY ${WORK_DIR})
  endif()
  execute_process(COMMAND ${arg_COMMAND} WORKING_DIRECTORY ${arg_WORKING_DIRECTORY}
    RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT status EQUAL 0)
    string(REPLACE ";" " " shown "${arg_COMMAND}")
    message(FATAL_ERROR "failed (${status}): ${shown}\n${out}\n${err}")
  endif()
  if(arg_OUTPUT_VARIABLE)
    set(${arg_OUTPUT_VARIABLE} "${out}" PARENT_SCOPE)
  endif()
endfunction()

function(expect_match text pattern what)
  if(NOT text MATCHES "${pattern}")
    message(FATAL_ERROR "${what}: expected to match '${pattern}', got:\n${text}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
set(deck ${SOURCE_DIR}/examples/beam.inp)

run_checked(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

# The CMake package.
file(GLOB_RECURSE installed_headers RELATIVE ${prefix}/include/fedeck ${prefix}/include/fedeck/*.h)
list(LENGTH installed_headers header_count)
if(header_count LESS 10)
  message(FATAL_ERROR "only ${header_count} headers were installed")
endif()
string(REPLACE ";" "\\;" header_list "${installed_headers}")
run_checked(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/packaging/consumer -B ${WORK_DIR}/consumer
  -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_C_COMPILER=${CC}
  -DCMAKE_BUILD_TYPE=Release "-DFEDECK_HEADER_LIST=${header_list}")
run_checked(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/consumer -j 2)
run_checked(COMMAND ${WORK_DIR}/consumer/count_keywords ${deck} OUTPUT_VARIABLE out)
expect_match("${out}" "^fedeck ${VERSION}: [1-9][0-9]* keywords\n$" "count_keywords through find_package")
run_checked(COMMAND ${WORK_DIR}/consumer/capi_from_c ${deck} OUTPUT_VARIABLE out)
expect_match("${out}" "^[1-9][0-9]* keywords\n$" "capi_from_c through fedeck::shared")

# pkg-config.
find_program(PKG_CONFIG pkg-config REQUIRED)
set(ENV{PKG_CONFIG_PATH} ${prefix}/lib/pkgconfig)
run_checked(COMMAND ${PKG_CONFIG} --cflags --libs fedeck OUTPUT_VARIABLE flags)
string(STRIP "${flags}" flags)
separate_arguments(flags UNIX_COMMAND "${flags}")
run_checked(COMMAND ${CXX} ${SOURCE_DIR}/tests/packaging/consumer/count_keywords.cpp ${flags}
  -o ${WORK_DIR}/count_keywords_pc)
run_checked(COMMAND ${WORK_DIR}/count_keywords_pc ${deck} OUTPUT_VARIABLE out)
expect_match("${out}" "^fedeck ${VERSION}: [1-9][0-9]* keywords\n$" "count_keywords through pkg-config")
run_checked(COMMAND ${PKG_CONFIG} --modversion fedeck OUTPUT_VARIABLE out)
expect_match("${out}" "^${VERSION}\n$" "pkg-config --modversion")

# A version the package cannot give.
file(WRITE ${WORK_DIR}/too_new/CMakeLists.txt
  "cmake_minimum_required(VERSION 3.20)\nproject(too_new LANGUAGES NONE)\nfind_package(fedeck 99 CONFIG REQUIRED)\n")
execute_process(COMMAND ${CMAKE_COMMAND} -S ${WORK_DIR}/too_new -B ${WORK_DIR}/too_new/build
  -DCMAKE_PREFIX_PATH=${prefix} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(status EQUAL 0)
  message(FATAL_ERROR "find_package(fedeck 99 CONFIG) succeeded against version ${VERSION}")
endif()
expect_match("${err}" "compatible[ \n]+with requested version \"99\"" "find_package(fedeck 99)")
expect_match("${err}" "version: ${VERSION}" "find_package(fedeck 99) names the installed version")

# The program and the Python package carry the same version.
run_checked(COMMAND ${prefix}/bin/fedeck --version OUTPUT_VARIABLE out)
expect_match("${out}" "^fedeck ${VERSION}\n$" "fedeck --version")
file(STRINGS ${SOURCE_DIR}/python/fedeck/__init__.py python_version REGEX "^__version__ = ")
expect_match("${python_version}" "^__version__ = \"${VERSION}\"$" "fedeck.__version__")
file(STRINGS ${SOURCE_DIR}/python/pyproject.toml project_version REGEX "^version = ")
expect_match("${project_version}" "^version = \"${VERSION}\"$" "python/pyproject.toml")

file(REMOVE_RECURSE ${WORK_DIR})
message(STATUS "the installed package works")
