# SPDX-FileCopyrightText: 2026 The Varno Plexora developers
# SPDX-License-Identifier: GPL-3.0-or-later

# What every target of ours is compiled with. Generated code (moc, uic, rcc) is built under the same rules.
add_library(conventions INTERFACE)
target_compile_options(
    conventions
    INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Woverloaded-virtual -Wnon-virtual-dtor
              $<$<BOOL:${VARNO_WERROR}>:-Werror>)
target_compile_definitions(conventions INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
                                                 QT_USE_QSTRINGBUILDER QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# varno_library(<name> LINKS <targets...> SOURCES <files...> [FORMS <names...>]): one layer of the program.
# Forms are named by their files in forms/. Their headers are declared outputs, as AUTOUIC's are not, so that one
# run of the build takes an edited form over.
function(varno_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;SOURCES;FORMS")
    add_library(${name} ${arg_SOURCES})
    if(arg_FORMS)
        list(TRANSFORM arg_FORMS REPLACE "(.+)" "${PROJECT_SOURCE_DIR}/forms/\\1.ui")
        qt_wrap_ui(form_headers ${arg_FORMS})
        set_source_files_properties(${form_headers} PROPERTIES SKIP_AUTOGEN ON)
        target_sources(${name} PRIVATE ${form_headers})
        target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
    endif()
    target_link_libraries(
        ${name}
        PUBLIC ${arg_LINKS}
        PRIVATE conventions)
endfunction()
