# reports/entry_form/embed.cmake - makes a source with the page's template, whose style and scripts are in their places.
#
# The page's policy names the only style and the only script that a browser may take: each by its SHA-256, in base64.

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

# put(PLACE TEXT): puts a text into its place in the page, and its hash into the policy.
function(put place text)
    string(SHA256 hash "${text}")
    base64_of(${hash} hash)
    string(REPLACE "@${place}_HASH@" "${hash}" page "${page}")
    string(REPLACE "@${place}@" "${text}" page "${page}")
    set(page "${page}" PARENT_SCOPE)
endfunction()

file(READ ${FOLDER}/form.html page)
set(style "\n")
foreach(name form paper)
    file(READ ${FOLDER}/${name}.css part)
    string(APPEND style "${part}")
endforeach()
set(script "\n")
foreach(name bracket hand_over view form)
    file(READ ${FOLDER}/${name}.js part)
    string(APPEND script "${part}")
endforeach()
put(STYLE "${style}")
put(SCRIPT "${script}")
file(WRITE ${OUTPUT} "// The template of the entry form, made by embed.cmake.
#include \"reports/entry_form/form_template.h\"

namespace tallyhoop {

const std::string_view kEntryFormTemplate = R\"page(${page})page\";

} // namespace tallyhoop
")
