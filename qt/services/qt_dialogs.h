// qt/services/qt_dialogs.h - message boxes, input boxes and file dialogs made with Qt, all in plain text.
#pragma once

#include "qt/desk.h"
#include "ui/dialogs.h"

class QMessageBox;

namespace tallyhoop::qt {

class QtDialogs : public ui::Dialogs
{
public:
    explicit QtDialogs(Desk& desk) : m_desk{desk} {}

    ui::Answer show(const ui::Message& message) override;
    std::string ask(const ui::Question& question) override;
    std::optional<std::filesystem::path> openFile(const ui::FileChoice& choice) override;
    std::vector<std::filesystem::path> openFiles(const ui::FileChoice& choice) override;
    std::optional<std::filesystem::path> saveFile(const ui::FileChoice& choice) override;
    std::optional<std::filesystem::path> chooseFolder(const std::string& caption,
                                                      const std::filesystem::path& folder) override;
    void about(const std::filesystem::path& folder) override;

private:
    void offerHelp(QMessageBox& box, const std::string& topic);
    std::optional<std::filesystem::path> choose(const ui::FileChoice& choice, bool save);

    Desk& m_desk;
};

} // namespace tallyhoop::qt
