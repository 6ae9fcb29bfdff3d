// screens/players/players_words.cpp - the texts, kept letter for letter, odd spellings included.
#include "screens/players/players_words.h"

#include "base/text.h"
#include "files/data_folder.h"
#include "screens/help_topics.h"

namespace tallyhoop {

namespace {

constexpr const char* kTitle = "Pool Names Maintenance";

} // namespace

const ui::Message kSelectBeforeChange{kTitle, "** You need to select one record prior to CHANGE **", ui::Buttons::Ok,
                                      ui::Icon::Exclamation};
const ui::Message kSelectBeforeDelete{kTitle, "** You need to select one record prior to DELETE **", ui::Buttons::Ok,
                                      ui::Icon::Exclamation};
const ui::Message kNothingToAdd{kTitle, "The boxes are empty: there is nothing to add.", ui::Buttons::Ok,
                                ui::Icon::Exclamation, help_topic::kPlayers};
const ui::Message kNoSelections{kTitle,
                                "** You selected a change record where no Pool \r\n"
                                "Selections have been made **\r\n"
                                "\r\n"
                                "If you continue this Player Name record will\r\n"
                                "be deleted",
                                ui::Buttons::OkCancel, ui::Icon::Question};
const ui::Message kBothDeleted{kTitle,
                               "The player record and the Pool Selections\r\n"
                               "will both be deleted if you continue, Ok??",
                               ui::Buttons::OkCancel, ui::Icon::Question};

ui::Message selectionsOfEither(const std::filesystem::path& file)
{
    return {kTitle,
            "Another record has the same File Name, cut to 33 characters,\r\n"
            "but only one selection file begins with it:\r\n" +
                shown(file.filename()) +
                "\r\n"
                "It may be the other player's, so it will NOT be deleted.\r\n"
                "\r\n"
                "If you continue, only this Player Name record will be deleted",
            ui::Buttons::OkCancel, ui::Icon::Exclamation};
}

ui::Message listedAlready(const PlayerRecord& record)
{
    return {kTitle,
            "The list has a record for this file already:\r\n\r\n" + trimTrailingBlanks(record.name) + "   " +
                trimTrailingBlanks(record.fileName) + "\r\n\r\nDo you want to add another one?",
            ui::Buttons::OkCancel, ui::Icon::Question, help_topic::kPlayers};
}

std::string shownName(const std::string& name)
{
    const std::string text = withoutOuterBlanks(name);
    return text.empty() ? "The record" : text;
}

} // namespace tallyhoop
