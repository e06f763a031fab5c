# The library's layers: one static library per folder, each of which may use
# only the layers declared before it. A layer's files may include headers of
# their own layer and of the layers it depends on, directly or through other
# layers, and nothing else of the repository; an include that runs back up
# fails the configuration, and the build when a file changes afterwards.
#
#   fedeck_add_layer(<name> FOLDER <folder> [FILES <pattern>...] [DEPENDS <name>...])
#
# makes the target fedeck_<name> from the .cpp files of <folder> (an INTERFACE
# target when the layer has headers only) and links it to the targets of the
# DEPENDS layers, which must have been declared before it. Without FILES the
# layer owns every .h and .cpp file of its folder; with FILES only those that
# the glob patterns (relative to the folder) match, so that one folder may
# hold two layers. The layer that then takes the rest of the folder must
# depend on the layers owning the parts. The targets made so far are in the
# global property FEDECK_LAYER_TARGETS, lowest first.
#
# Run as a script (cmake -DFEDECK_LAYER_RULES=<file> -P FedeckLayers.cmake),
# the module checks the includes of the one layer that the rules file names.

include_guard(GLOBAL)

# Appends to `out_var` one message per include of `files` (paths relative to
# `root`) that is not allowed: an include of a folder of the repository that
# none of `allowed` covers. An entry ending in "/" covers its whole folder,
# any other entry that one header.
function(_fedeck_layer_violations out_var root name files allowed)
    set(shown)
    foreach(entry IN LISTS allowed)
        string(REGEX REPLACE "/$" "" entry "${entry}")
        list(APPEND shown "${entry}")
    endforeach()
    list(JOIN shown " " shown)
    set(violations ${${out_var}})
    set(include_pattern "^[ \t]*#[ \t]*include[ \t]*\"(([^\"/]+)/[^\"]*)\"")
    foreach(file IN LISTS files)
        file(STRINGS "${root}/${file}" lines REGEX "${include_pattern}")
        foreach(line IN LISTS lines)
            # A line holding a semicolon comes apart in the list; its pieces
            # after the first are no includes and are passed over here.
            if(NOT line MATCHES "${include_pattern}")
                continue()
            endif()
            set(path "${CMAKE_MATCH_1}")
            if(NOT IS_DIRECTORY "${root}/${CMAKE_MATCH_2}")
                continue()
            endif()
            set(covered FALSE)
            foreach(entry IN LISTS allowed)
                string(FIND "${path}" "${entry}" at)
                if((entry MATCHES "/$" AND at EQUAL 0) OR path STREQUAL entry)
                    set(covered TRUE)
                    break()
                endif()
            endforeach()
            if(NOT covered)
                list(APPEND violations
                     "${file} includes ${path}, but ${name} may only include: ${shown}")
            endif()
        endforeach()
    endforeach()
    set(${out_var} ${violations} PARENT_SCOPE)
endfunction()

function(_fedeck_fail_on_violations violations)
    if(violations)
        list(JOIN violations "\n  " text)
        message(FATAL_ERROR "An include runs against the layer order:\n  ${text}\n"
                            "Move the code to the layer that owns it, or depend on that layer "
                            "if it lies below (cmake/FedeckLayers.cmake).")
    endif()
endfunction()

if(CMAKE_SCRIPT_MODE_FILE)
    include("${FEDECK_LAYER_RULES}")
    set(violations)
    _fedeck_layer_violations(violations "${FEDECK_LAYER_ROOT}" "${FEDECK_LAYER_NAME}"
                             "${FEDECK_LAYER_FILES}" "${FEDECK_LAYER_ALLOWED}")
    _fedeck_fail_on_violations("${violations}")
    file(TOUCH "${FEDECK_LAYER_STAMP}")
    return()
endif()

function(fedeck_add_layer name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "FOLDER" "FILES;DEPENDS")
    if(NOT arg_FOLDER)
        message(FATAL_ERROR "fedeck_add_layer(${name}): FOLDER is missing")
    endif()
    set(root "${PROJECT_SOURCE_DIR}")
    set(folder "${arg_FOLDER}")
    set(target fedeck_${name})
    get_property(declared GLOBAL PROPERTY FEDECK_LAYERS)

    # The layers below: the DEPENDS ones and everything below them.
    set(below)
    foreach(dep IN LISTS arg_DEPENDS)
        if(NOT dep IN_LIST declared)
            message(FATAL_ERROR "Layer ${name} depends on ${dep}, which is no layer declared "
                                "before it: a layer may only depend on the layers below it.")
        endif()
        get_property(dep_below GLOBAL PROPERTY FEDECK_LAYER_${dep}_BELOW)
        list(APPEND below ${dep} ${dep_below})
    endforeach()
    list(REMOVE_DUPLICATES below)

    # The layer's files. A layer without FILES takes what the FILES layers of
    # its folder left over, and must lie above them.
    if(arg_FILES)
        set(globs)
        foreach(pattern IN LISTS arg_FILES)
            list(APPEND globs "${root}/${folder}/${pattern}")
        endforeach()
    else()
        set(globs "${root}/${folder}/*.h" "${root}/${folder}/*.cpp")
    endif()
    file(GLOB files CONFIGURE_DEPENDS RELATIVE "${root}" ${globs})
    list(FILTER files INCLUDE REGEX "\\.(h|cpp)$")
    get_property(part_owners GLOBAL PROPERTY FEDECK_FOLDER_${folder}_PART_OWNERS)
    if(NOT arg_FILES)
        foreach(owner IN LISTS part_owners)
            if(NOT owner IN_LIST below)
                message(FATAL_ERROR "Layer ${name} takes the rest of ${folder}/ and must "
                                    "depend on ${owner}, which owns part of it.")
            endif()
            get_property(owned GLOBAL PROPERTY FEDECK_LAYER_${owner}_FILES)
            list(REMOVE_ITEM files ${owned})
        endforeach()
    endif()
    if(NOT files)
        message(FATAL_ERROR "Layer ${name} has no .h or .cpp files in ${folder}/")
    endif()
    set(sources ${files})
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    set(headers ${files})
    list(FILTER headers INCLUDE REGEX "\\.h$")

    # What the layer's files may include: the folders (or, for a layer owning
    # part of a folder, the headers) of the layers below, lowest first, then
    # its own.
    set(allowed)
    foreach(layer IN LISTS declared)
        if(layer IN_LIST below)
            get_property(layer_own GLOBAL PROPERTY FEDECK_LAYER_${layer}_OWN)
            list(APPEND allowed ${layer_own})
        endif()
    endforeach()
    if(arg_FILES)
        set(own ${headers})
        set_property(GLOBAL APPEND PROPERTY FEDECK_FOLDER_${folder}_PART_OWNERS ${name})
    else()
        set(own "${folder}/")
    endif()
    # A whole folder makes the single headers of that folder redundant.
    list(APPEND allowed ${own})
    foreach(entry IN LISTS allowed)
        if(entry MATCHES "^([^/]+)/.+$" AND "${CMAKE_MATCH_1}/" IN_LIST allowed)
            list(REMOVE_ITEM allowed "${entry}")
        endif()
    endforeach()
    list(REMOVE_DUPLICATES allowed)

    set(violations)
    _fedeck_layer_violations(violations "${root}" "${name}" "${files}" "${allowed}")
    _fedeck_fail_on_violations("${violations}")

    set(dep_targets)
    foreach(dep IN LISTS arg_DEPENDS)
        list(APPEND dep_targets fedeck_${dep})
    endforeach()
    list(TRANSFORM files PREPEND "${root}/" OUTPUT_VARIABLE absolute_files)
    if(sources)
        add_library(${target} STATIC ${absolute_files})
        target_link_libraries(${target} PUBLIC ${dep_targets})
        target_include_directories(${target} PUBLIC "${root}")
        # Position-independent: the shared library takes the layers' objects.
        set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    else()
        add_library(${target} INTERFACE ${absolute_files})
        target_link_libraries(${target} INTERFACE ${dep_targets})
        target_include_directories(${target} INTERFACE "${root}")
    endif()

    # The same check at build time, for includes edited since configuration.
    set(rules "${PROJECT_BINARY_DIR}/fedeck_layers/${name}.cmake")
    set(stamp "${PROJECT_BINARY_DIR}/fedeck_layers/${name}.checked")
    file(GENERATE OUTPUT "${rules}" CONTENT
        "set(FEDECK_LAYER_NAME [==[${name}]==])
set(FEDECK_LAYER_ROOT [==[${root}]==])
set(FEDECK_LAYER_FILES [==[${files}]==])
set(FEDECK_LAYER_ALLOWED [==[${allowed}]==])
set(FEDECK_LAYER_STAMP [==[${stamp}]==])
")
    add_custom_command(OUTPUT "${stamp}"
        COMMAND "${CMAKE_COMMAND}" "-DFEDECK_LAYER_RULES=${rules}" -P "${CMAKE_CURRENT_FUNCTION_LIST_FILE}"
        DEPENDS "${rules}" "${CMAKE_CURRENT_FUNCTION_LIST_FILE}" ${absolute_files}
        COMMENT "Checking the includes of layer ${name}"
        VERBATIM)
    add_custom_target(${target}_includes DEPENDS "${stamp}")
    add_dependencies(${target} ${target}_includes)

    set_property(GLOBAL APPEND PROPERTY FEDECK_LAYERS ${name})
    set_property(GLOBAL APPEND PROPERTY FEDECK_LAYER_TARGETS ${target})
    set_property(GLOBAL PROPERTY FEDECK_LAYER_${name}_BELOW ${below})
    set_property(GLOBAL PROPERTY FEDECK_LAYER_${name}_FILES ${files})
    set_property(GLOBAL PROPERTY FEDECK_LAYER_${name}_OWN ${own})
endfunction()
