#pragma once

#include <QDialog>
#include <deque>
#include <functional>
#include <vector>

#include "ui/dialogs.h"

namespace rqm5 {

/// Answers every message, question and dialog by script, and keeps what was asked.
class ScriptedDialogs : public Dialogs
{
  public:
    /// Answers to questions, used up in order; without one a message is acknowledged (Ok) and a question
    /// is cancelled.
    std::deque<QMessageBox::StandardButton> answers;
    std::vector<Prompt> asked;

    /// Looks at the program while a message is shown.
    std::function<void()> onAsk;

    /// Files to choose, used up in order; without one the choice is cancelled.
    std::deque<QString> files;
    std::vector<FileChoice> choices;
    std::vector<QString> suggestions;

    /// What a person does in a dialog while it is shown. Without it the dialog is cancelled.
    std::function<void(QDialog&)> act;
    int runs = 0;

    QMessageBox::StandardButton Ask(QWidget* /*parent*/, const Prompt& prompt) override
    {
        asked.push_back(prompt);
        if (onAsk)
            onAsk();
        if (!answers.empty())
            return Next(answers);
        return prompt.buttons == QMessageBox::Ok ? QMessageBox::Ok : QMessageBox::Cancel;
    }

    QString ChooseFile(QWidget* /*parent*/, FileChoice choice, const QString& suggested) override
    {
        choices.push_back(choice);
        suggestions.push_back(suggested);
        return files.empty() ? QString() : Next(files);
    }

    QString ChooseFolder(QWidget* /*parent*/, const QString& /*title*/, const QString& suggested) override
    {
        suggestions.push_back(suggested);
        return files.empty() ? QString() : Next(files);
    }

    int Run(QDialog& dialog) override
    {
        ++runs;
        dialog.setResult(QDialog::Rejected);
        dialog.show();
        dialog.activateWindow();
        if (act)
            act(dialog);
        const int result = dialog.result();
        dialog.hide();
        // A desktop gives the focus back to the window below; the offscreen platform has to be told.
        if (dialog.parentWidget() != nullptr)
            dialog.parentWidget()->activateWindow();
        return result;
    }

  private:
    template <class Value>
    static Value Next(std::deque<Value>& script)
    {
        const Value next = script.front();
        script.pop_front();
        return next;
    }
};

}  // namespace rqm5
