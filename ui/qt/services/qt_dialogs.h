// ui/qt/services/qt_dialogs.h - message boxes, input boxes and file dialogs of Qt's own, plain text throughout.
#pragma once

#include "ui/dialogs.h"
#include "ui/qt/desk.h"

namespace tallyhoop::qt {

class QtDialogs : public ui::Dialogs
{
public:
    explicit QtDialogs(Desk& desk) : m_desk{desk} {}

    ui::Answer show(const ui::Message& message) override;
    std::string ask(const ui::Question& question) override;
    std::optional<std::filesystem::path> openFile(const ui::FileChoice& choice) override;
    std::optional<std::filesystem::path> saveFile(const ui::FileChoice& choice) override;
    void about() override;

private:
    Desk& m_desk;
};

/// @returns a name filter of Qt's that matches in any case: "*.THC" gives "*.[Tt][Hh][Cc]"
QString caseless(std::string_view pattern);

} // namespace tallyhoop::qt
