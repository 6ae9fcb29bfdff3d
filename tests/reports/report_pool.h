// tests/reports/report_pool.h - the four players as files of a folder.
#pragma once

#include "fakes/scratch_folder.h"
#include "files/selection_file.h"
#include "reports/four_players.h"

namespace tallyhoop::test {

/// Puts the files of the four players and their results into a folder.
inline void putFourPlayers(const ScratchFolder& folder)
{
    for (const Entry& player : fourPlayers())
        folder.put(player.fileName, selectionFile(player));
    folder.put("TALLYHOOP.THS", selectionFile(fourPlayersResults()));
    folder.put("PLAYERNAMES.CSV", crlf({"\"Name                     \",\"FileName                         \","
                                        "\"Email                                      \",\"Phone         \"",
                                        "\"Adams                    \",\"Adams_AB.THC                     \","
                                        "\"adams@example.org                          \",\"555-0101      \"",
                                        "\"Baker                    \",\"Baker_C.THC                      \","
                                        "\"                                           \",\"555-0102      \"",
                                        "\"Clark                    \",\"Clark_D.THC                      \","
                                        "\"clark@example.org                          \",\"              \"",
                                        "\"Dunn                     \",\"Dunn_EF.THC                      \","
                                        "\"dunn@example.org                           \",\"555-0104      \""}));
}

} // namespace tallyhoop::test
