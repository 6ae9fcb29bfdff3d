# cmake/hardening.cmake - the flags that Debian builds its packages with: a memory error ends the program instead of doing
# what the author of a malicious data file intends.
#
# Optimised builds for Linux only: the checked functions of the C library need optimisation, and the sanitizers bring
# checks of their own.

include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection TALLYHOOP_HAS_CF_PROTECTION) # not on every processor
check_cxx_compiler_flag(-fstack-clash-protection TALLYHOOP_HAS_STACK_CLASH_PROTECTION)

if(CMAKE_SYSTEM_NAME STREQUAL Linux AND CMAKE_BUILD_TYPE MATCHES "^Rel" AND NOT TALLYHOOP_SANITIZERS AND NOT TALLYHOOP_FUZZ)
    set(TALLYHOOP_HARDENED ON)
else()
    set(TALLYHOOP_HARDENED OFF)
endif()

# harden(TARGET...): the program's own libraries and executables; tests need none of it.
function(harden)
    if(NOT TALLYHOOP_HARDENED)
        return()
    endif()
    foreach(target ${ARGN})
        # Position-independent executables; objects that use Qt get the -fPIC that it needs from Qt's own flags, which
        # follow these.
        target_compile_options(${target} PRIVATE
            -fPIE
            -fstack-protector-strong
            -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
            -Wformat -Werror=format-security
            $<$<BOOL:${TALLYHOOP_HAS_STACK_CLASH_PROTECTION}>:-fstack-clash-protection>
            $<$<BOOL:${TALLYHOOP_HAS_CF_PROTECTION}>:-fcf-protection>)
        get_target_property(type ${target} TYPE)
        if(type STREQUAL EXECUTABLE)
            target_link_options(${target} PRIVATE -pie -Wl,-z,relro -Wl,-z,now)
        endif()
    endforeach()
endfunction()
