# reports/web/embed.cmake - makes a source with a page's template, whose style and scripts are in their places.
#
# The page's policy names the only style and the only script that a browser may take: each by its SHA-256, in base64.
# Given: HEAD and PAGE (files), STYLES and SCRIPTS (lists of files), CONSTANT (name of the template), HEADER (which declares
# it) and OUTPUT. embed_page() in CMakeLists.txt beside this calls it.

cmake_minimum_required(VERSION 3.25)

# base64_of(HEX RESULT): the base64 of bytes that are given as hexadecimal digits.
function(base64_of hex result)
    set(alphabet "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")
    string(LENGTH "${hex}" digits)
    math(EXPR missing "(6 - ${digits} % 6) % 6") # three bytes make four letters
    string(REPEAT "0" ${missing} zeros)
    string(APPEND hex "${zeros}")
    set(base64 "")
    string(LENGTH "${hex}" padded)
    math(EXPR last "${padded} - 6")
    foreach(place RANGE 0 ${last} 6)
        string(SUBSTRING "${hex}" ${place} 6 three)
        foreach(shift 18 12 6 0)
            math(EXPR letter "(0x${three} >> ${shift}) & 63")
            string(SUBSTRING "${alphabet}" ${letter} 1 letter)
            string(APPEND base64 "${letter}")
        endforeach()
    endforeach()
    math(EXPR fill "${missing} / 2") # a byte that is missing makes a letter without meaning
    string(LENGTH "${base64}" letters)
    math(EXPR kept "${letters} - ${fill}")
    string(SUBSTRING "${base64}" 0 ${kept} base64)
    string(REPEAT "=" ${fill} equals)
    set(${result} "${base64}${equals}" PARENT_SCOPE)
endfunction()

# joined(FILES RESULT): the texts of the files, one after the other, from a line of their own on.
function(joined files result)
    set(text "\n")
    foreach(file ${files})
        file(READ ${file} part)
        string(APPEND text "${part}")
    endforeach()
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

# put(PLACE TEXT): puts a text into its place in the page, and its hash into the policy.
function(put place text)
    string(SHA256 hash "${text}")
    base64_of(${hash} hash)
    string(REPLACE "@${place}_HASH@" "${hash}" page "${page}")
    string(REPLACE "@${place}@" "${text}" page "${page}")
    set(page "${page}" PARENT_SCOPE)
endfunction()

file(READ ${PAGE} page)
file(READ ${HEAD} head)
string(REPLACE "@HEAD@" "${head}" page "${page}")
joined("${STYLES}" style)
joined("${SCRIPTS}" script)
put(STYLE "${style}")
put(SCRIPT "${script}")
cmake_path(GET OUTPUT FILENAME name)
file(WRITE ${OUTPUT} "// ${name} - a page's template, made by embed.cmake.
#include \"${HEADER}\"

namespace tallyhoop {

const std::string_view ${CONSTANT} = R\"page(${page})page\";

} // namespace tallyhoop
")
