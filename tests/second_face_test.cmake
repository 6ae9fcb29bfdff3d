# Installs the sample pool into an empty FOLDER with DEMOSET and has SECOND_FACE print its standings.
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
file(COPY "${DEMOSET}" DESTINATION "${FOLDER}")
cmake_path(GET DEMOSET FILENAME installer)
execute_process(COMMAND "${FOLDER}/${installer}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${SECOND_FACE}" "${FOLDER}" OUTPUT_VARIABLE standings COMMAND_ERROR_IS_FATAL ANY)

# Worked out by hand, as the tests of the sample pool explain: points, most points, good, bad and open picks, and the
# tie-breaker; the most points first.
set(expected
    "2000 NCAA Tournament\n"
    "Tournament Standings\n"
    "\n 080   DP, Demo Prophet    Demo Prophet_DP.THC    120   044   016   003    160   Michigan St.\n"
    "\n 059   DF, Demo Favorite   Demo Favorite_DF.THC   071   039   023   001    152   Duke\n"
    "\n 055   DH, Demo Halfway    Demo Halfway_DH.THC    067   036   026   001    145   \n"
    "\n 031   DL, Demo Longshot   Demo Longshot_DL.THC   031   024   039   000    131   Gonzaga\n")
set(last -1)
foreach(line IN LISTS expected)
    string(FIND "${standings}" "${line}" place)
    if(NOT place GREATER last)
        message(FATAL_ERROR "Not there, or not in this order:\n${line}\nin:\n${standings}")
    endif()
    set(last ${place})
endforeach()
