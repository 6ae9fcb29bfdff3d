// tests/fakes/fake_dialogs.h - a person who answers as scripted; an unscripted question fails the test.
#pragma once

#include "ui/dialogs.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop::test {

class FakeDialogs : public ui::Dialogs
{
public:
    ~FakeDialogs() override
    {
        EXPECT_TRUE(m_answers.empty()) << m_answers.size() << " scripted answer(s) were never asked for";
        EXPECT_TRUE(m_texts.empty()) << m_texts.size() << " scripted text(s) were never asked for";
        EXPECT_TRUE(m_severalFiles.empty()) << "scripted files were never asked for";
        EXPECT_TRUE(m_files.empty()) << m_files.size() << " scripted file(s) were never asked for";
    }

    /// The answer to the next question that leaves a choice. Messages with only OK need no script: they are recorded. A
    /// further button beside it is pressed when the script says so.
    FakeDialogs& answer(ui::Answer answer)
    {
        m_answers.push_back(answer);
        return *this;
    }
    FakeDialogs& type(std::string text)
    {
        m_texts.push_back(std::move(text));
        return *this;
    }
    FakeDialogs& pick(std::optional<std::filesystem::path> file)
    {
        m_files.push_back(std::move(file));
        return *this;
    }

    FakeDialogs& pickSeveral(std::vector<std::filesystem::path> files)
    {
        m_severalFiles.push_back(std::move(files));
        return *this;
    }

    /// Called while a message is shown: what does the screen look like meanwhile?
    std::function<void(const ui::Message&)> whileShown;

    std::vector<ui::Message> shown;
    std::vector<ui::Question> asked;
    std::vector<ui::FileChoice> fileChoices;
    int aboutShown = 0;
    std::filesystem::path folderTold; ///< by the about box

    std::vector<std::string> captionsShown() const
    {
        std::vector<std::string> captions;
        for (const ui::Message& message : shown)
            captions.push_back(message.caption);
        return captions;
    }

    ui::Answer show(const ui::Message& message) override
    {
        shown.push_back(message);
        if (whileShown)
            whileShown(message);
        if (message.buttons == ui::Buttons::Ok && (message.moreButton.empty() || m_answers.empty()))
            return ui::Answer::Ok;
        if (m_answers.empty()) {
            ADD_FAILURE() << "unscripted question: " << message.caption << "\n" << message.text;
            return message.buttons == ui::Buttons::YesNo ? ui::Answer::No : ui::Answer::Cancel;
        }
        const ui::Answer answer = m_answers.front();
        m_answers.pop_front();
        return answer;
    }

    std::string ask(const ui::Question& question) override
    {
        asked.push_back(question);
        return next(m_texts, "input box", question.caption);
    }

    std::optional<std::filesystem::path> openFile(const ui::FileChoice& choice) override
    {
        fileChoices.push_back(choice);
        return next(m_files, "open dialog", choice.caption);
    }

    std::vector<std::filesystem::path> openFiles(const ui::FileChoice& choice) override
    {
        fileChoices.push_back(choice);
        return next(m_severalFiles, "dialog for several files", choice.caption);
    }

    std::optional<std::filesystem::path> saveFile(const ui::FileChoice& choice) override
    {
        fileChoices.push_back(choice);
        return next(m_files, "save dialog", choice.caption);
    }

    std::optional<std::filesystem::path> chooseFolder(const std::string& caption,
                                                      const std::filesystem::path& folder) override
    {
        fileChoices.push_back({caption, {}, {}, folder, {}});
        return next(m_files, "folder dialog", caption);
    }

    void about(const std::filesystem::path& folder) override
    {
        ++aboutShown;
        folderTold = folder;
    }

private:
    template <class T>
    static T next(std::deque<T>& script, const char* what, const std::string& caption)
    {
        if (script.empty()) {
            ADD_FAILURE() << "unscripted " << what << ": " << caption;
            return {};
        }
        T value = std::move(script.front());
        script.pop_front();
        return value;
    }

    std::deque<ui::Answer> m_answers;
    std::deque<std::string> m_texts;
    std::deque<std::optional<std::filesystem::path>> m_files;
    std::deque<std::vector<std::filesystem::path>> m_severalFiles;
};

} // namespace tallyhoop::test
